package tessaly.str.diskarray;

/** All pools. */
public class PoolInfo {
    /** Option, the library's own value. */
    public int option;
    /** The pools of single controllers, always 2 elements, one for each controller. */
    public PoolCtlInfo[] ctl;
    /** The pools of the whole array. */
    public PoolSysInfo sys;
}
