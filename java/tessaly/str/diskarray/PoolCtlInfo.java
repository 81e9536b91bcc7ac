package tessaly.str.diskarray;

/** The pool of one controller. */
public class PoolCtlInfo {
    public int pool_enable_count;
    /** Always one element. */
    public PoolDetailInfo[] pool;
}
