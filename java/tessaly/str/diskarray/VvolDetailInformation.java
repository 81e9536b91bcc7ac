package tessaly.str.diskarray;

/** A virtual volume. */
public class VvolDetailInformation {
    /** LU number. */
    public int lun;
    /** How the capacity is given, the library's own value. */
    public int capacity_specify;
    /** Capacity in blocks of 512 bytes, high word. */
    public int capacity_h;
    /** Capacity, low word. */
    public int capacity_l;
}
