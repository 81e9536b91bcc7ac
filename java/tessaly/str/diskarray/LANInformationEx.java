package tessaly.str.diskarray;

/** The LAN addresses and links of both controllers. */
public class LANInformationEx {
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public LanDetail[] ctl;
}
