package tessaly.str.diskarray;

/** A pool whose settings change. */
public class PoolChangeRequest {
    public int ctl_no;
    public int pool_no;
    public int poolinfo_chg_index;
    public int threshold;
}
