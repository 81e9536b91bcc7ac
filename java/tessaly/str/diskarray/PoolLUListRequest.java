package tessaly.str.diskarray;

/** LUs to add to a pool. */
public class PoolLUListRequest {
    /** How many elements of <code>lu</code> are used; not compared with its length. */
    public int lu_count;
    /** LU numbers; at least 64 elements, of which the first 64 count. Not null. */
    public int[] lu = new int[64];
}
