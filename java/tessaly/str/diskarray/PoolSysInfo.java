package tessaly.str.diskarray;

/** The pools of the whole array. */
public class PoolSysInfo {
    /** Number of pools that are enabled; the array has its full length all the same. */
    public int pool_enable_count;
    /** Always 64 elements. */
    public PoolDetailInfo[] pool;
}
