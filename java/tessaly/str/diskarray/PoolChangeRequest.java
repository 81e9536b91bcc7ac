package tessaly.str.diskarray;

/** A pool whose settings change. */
public class PoolChangeRequest {
    /** Controller of the pool, the library's own number. */
    public int ctl_no;
    /** Pool number. */
    public int pool_no;
    /** Which settings change, the library's own value. */
    public int poolinfo_chg_index;
    /** New threshold of what is used, in the library's own unit. */
    public int threshold;
}
