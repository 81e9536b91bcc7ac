package tessaly.str.diskarray;

/** The capacity of a pool, as two halves. */
public class PoolDetailCapa {
    public int pool_no;
    public int poolcapa_h;
    public int poolcapa_l;
}
