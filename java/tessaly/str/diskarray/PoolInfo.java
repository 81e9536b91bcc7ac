package tessaly.str.diskarray;

/** All pools. */
public class PoolInfo {
    public int option;
    /** One for each of the 2 controllers. */
    public PoolCtlInfo[] ctl;
    public PoolSysInfo sys;
}
