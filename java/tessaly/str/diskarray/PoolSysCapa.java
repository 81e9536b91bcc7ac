package tessaly.str.diskarray;

/** The capacities of the pools of an array. */
public class PoolSysCapa {
    public int pool_enable_count;
    public PoolDetailCapa[] pool;
}
