package tessaly.str.diskarray;

/** An LU as a part of an integrated one, with its children. */
public class UniteLU {
    /** Which part the LU is, the library's own value. */
    public int unite_info;
    /** Status, the library's own value. */
    public int status;
    /** Capacity in one word, in the library's own unit. */
    public int capacity;
    /** How many elements of <code>child_lun</code> are used. */
    public int child_lu_count;
    /** LU numbers, always 512 elements, of which the first <code>child_lu_count</code> are used. */
    public int[] child_lun;
}
