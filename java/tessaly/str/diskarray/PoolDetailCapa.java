package tessaly.str.diskarray;

/** The capacity of a pool, an unsigned number of two words. */
public class PoolDetailCapa {
    /** Pool number. */
    public int pool_no;
    /** Capacity in the library's own unit, high word. */
    public int poolcapa_h;
    /** Capacity in the library's own unit, low word. */
    public int poolcapa_l;
}
