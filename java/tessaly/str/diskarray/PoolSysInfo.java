package tessaly.str.diskarray;

/** The pools that both controllers share. */
public class PoolSysInfo {
    public int pool_enable_count;
    /** Always 64 elements. */
    public PoolDetailInfo[] pool;
}
