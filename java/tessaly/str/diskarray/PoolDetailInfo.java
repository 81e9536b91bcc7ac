package tessaly.str.diskarray;

/** A pool and its LUs. What marks a pool in use is the library's own. */
public class PoolDetailInfo {
    /** Pool number. */
    public int pool_no;
    /** Pool status, the library's own value. */
    public int pool_status;
    /** Total capacity in blocks of 512 bytes, high word. */
    public int allcapa_h;
    /** Total capacity, low word. */
    public int allcapa_l;
    /** Used capacity in blocks of 512 bytes, high word. */
    public int usedcapa_h;
    /** Used capacity, low word. */
    public int usedcapa_l;
    /** How much is used, in the library's own unit. */
    public int used_rate;
    /** Threshold of what is used, in the library's own unit. */
    public int threshold;
    /** How many elements of <code>lu</code> are used. */
    public int lu_count;
    /** LU numbers, always 64 elements, of which the first <code>lu_count</code> are used. */
    public int[] lu;
}
