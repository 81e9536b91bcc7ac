package tessaly.str.diskarray;

/** The enclosure controllers, and the replacement of their microprogram. */
public class ENCStatusList {
    public ENCMicroRevision download_rev;
    public int exec_status;
    public ENCReplaceTime start_time;
    public ENCReplaceTime now_time;
    public int replacetime_min;
    public int replacetime_max;
    public int validCTU;
    public ENCCTUStatus ctu;
    /** 64 elements. */
    public ENCUnitStatus[] unit;
}
