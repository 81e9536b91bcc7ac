package tessaly.str.diskarray;

/** An LU as a part of an integrated one, with the part behind it. */
public class UniteLU2 {
    /** Which part the LU is, the library's own value. */
    public int unite_info;
    /** Status, the library's own value. */
    public int status;
    /** Capacity in one word, in the library's own unit; the two words have all of it. */
    public int capacity;
    /** Capacity in blocks of 512 bytes, high word. */
    public int capacity_h;
    /** Capacity, low word. */
    public int capacity_l;
    /** Number of children. */
    public int child_lu_count;
    /** LU that is the next part; what it is in the last part is the library's own. */
    public int next_lun;
}
