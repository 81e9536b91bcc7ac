package tessaly.str.diskarray;

/** The pool of one controller. The kind of <code>pool</code> is assumed. */
public class PoolCtlInfo {
    public int pool_enable_count;
    /** Always one element. */
    public PoolDetailInfo[] pool;
}
