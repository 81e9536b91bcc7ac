package tessaly.str.diskarray;

/** The pool of one controller. The kind of <code>pool</code> is assumed. */
public class PoolCtlInfo {
    /** Number of pools that are enabled; the array has its full length all the same. */
    public int pool_enable_count;
    /** Always one element. */
    public PoolDetailInfo[] pool;
}
