package tessaly.str.diskarray;

/** The pools of the whole array. */
public class PoolSysInfo {
    public int pool_enable_count;
    /** Always 64 elements. */
    public PoolDetailInfo[] pool;
}
