package tessaly.str.diskarray;

/** The capacity of a pool, an unsigned number of two words. */
public class PoolDetailCapa {
    /** Pool number. */
    public int pool_no;
    /** Capacity in blocks of 512 bytes, high word. */
    public int poolcapa_h;
    /** Capacity in blocks of 512 bytes, low word. */
    public int poolcapa_l;
}
