package tessaly.str.diskarray;

/** The LAN addresses and links of both controllers. */
public class LANInformationEx {
    /** 2 elements. */
    public LanDetail[] ctl;
}
