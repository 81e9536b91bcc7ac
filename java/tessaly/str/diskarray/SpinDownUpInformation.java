package tessaly.str.diskarray;

/** Power saving by RAID group and by logical unit. */
public class SpinDownUpInformation {
    public int option;
    public int rg_count;
    /** 200 elements. */
    public SpinDownUpRGInfo[] rg;
    public int lu_count;
    /** 8192 elements. */
    public SpinDownUpLuInfo[] lu;
}
