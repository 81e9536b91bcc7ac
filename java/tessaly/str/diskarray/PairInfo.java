package tessaly.str.diskarray;

/** The pairs inside an array; its light forms leave some fields unset. */
public class PairInfo {
    public int option;
    public PoolCtlCapa[] ctl;
    public PoolSysCapa sys;
    public int pair_count;
    public PairLUInfo[] lu;
}
