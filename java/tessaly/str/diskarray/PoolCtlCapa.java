package tessaly.str.diskarray;

/** The capacity of the pool of a controller. */
public class PoolCtlCapa {
    /** How many elements of <code>pool</code> are in use. */
    public int pool_enable_count;
    /** 1 element, used or not. */
    public PoolDetailCapa[] pool;
}
