package tessaly.str.diskarray;

/** The capacity of the pool of a controller. */
public class PoolCtlCapa {
    public int pool_enable_count;
    public PoolDetailCapa[] pool;
}
