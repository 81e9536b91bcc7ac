package tessaly.str.diskarray;

/** An LU as a part of an integrated one, with the part behind it. */
public class UniteLU2 {
    public int unite_info;
    public int status;
    public int capacity;
    /** Capacity, high word. */
    public int capacity_h;
    /** Capacity, low word. */
    public int capacity_l;
    public int child_lu_count;
    public int next_lun;
}
