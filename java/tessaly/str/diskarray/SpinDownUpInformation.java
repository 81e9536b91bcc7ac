package tessaly.str.diskarray;

/** Power saving by RAID group and by logical unit. */
public class SpinDownUpInformation {
    /** Option, the library's own value. */
    public int option;
    /** Number of RAID groups listed. */
    public int rg_count;
    /** The RAID groups, 200 elements, whatever the count says. */
    public SpinDownUpRGInfo[] rg;
    /** Number of logical units listed. */
    public int lu_count;
    /** The logical units, 8,192 elements, whatever the count says. */
    public SpinDownUpLuInfo[] lu;
}
