package tessaly.str.diskarray;

/** The controller that owns an LU. */
public class LuOwnershipInfo {
    public int lu_num;
    public int rg_num;
    public int lu_type;
    /** Default controller. */
    public int d_ctl;
    /** Current controller. */
    public int c_ctl;
    public int cache_num;
    public int cpucore_num;
}
