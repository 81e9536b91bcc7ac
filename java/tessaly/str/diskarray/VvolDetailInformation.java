package tessaly.str.diskarray;

/** A virtual volume. */
public class VvolDetailInformation {
    /** LU number. */
    public int lun;
    public int capacity_specify;
    /** Capacity, high word. */
    public int capacity_h;
    /** Capacity, low word. */
    public int capacity_l;
}
