package tessaly.str.diskarray;

/** The controller that owns an LU. */
public class LuOwnershipInfo {
    /** LU number. */
    public int lu_num;
    /** RAID group that holds the LU. */
    public int rg_num;
    /** Type of the LU, the library's own value. */
    public int lu_type;
    /** Controller that owns the LU by default, the library's own number. */
    public int d_ctl;
    /** Controller that owns it now, the library's own number. */
    public int c_ctl;
    /** Cache, the library's own number. */
    public int cache_num;
    /** Processor core, the library's own number. */
    public int cpucore_num;
}
