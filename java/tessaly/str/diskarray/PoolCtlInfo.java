package tessaly.str.diskarray;

/** The pool of one controller. The place of <code>pool</code> is assumed. */
public class PoolCtlInfo {
    public int pool_enable_count;
    /** Always one element. */
    public PoolDetailInfo[] pool;
}
