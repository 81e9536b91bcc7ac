package tessaly.str.diskarray;

/** An LU as a part of an integrated one, with its children. */
public class UniteLU {
    public int unite_info;
    public int status;
    public int capacity;
    /** How many elements of <code>child_lun</code> are used. */
    public int child_lu_count;
    /** LU numbers, always 512 elements. */
    public int[] child_lun;
}
