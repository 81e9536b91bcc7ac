package tessaly.str.diskarray;

/** The capacities of the pools of an array. */
public class PoolSysCapa {
    /** How many elements of <code>pool</code> are in use. */
    public int pool_enable_count;
    /** 64 elements, used or not. */
    public PoolDetailCapa[] pool;
}
