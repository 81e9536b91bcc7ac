package tessaly.str.diskarray;

/** A pool and its LUs. */
public class PoolDetailInfo {
    public int pool_no;
    public int pool_status;
    /** Total capacity, high word. */
    public int allcapa_h;
    /** Total capacity, low word. */
    public int allcapa_l;
    /** Used capacity, high word. */
    public int usedcapa_h;
    /** Used capacity, low word. */
    public int usedcapa_l;
    public int used_rate;
    public int threshold;
    /** How many elements of <code>lu</code> are used. */
    public int lu_count;
    /** LU numbers, always 64 elements. */
    public int[] lu;
}
