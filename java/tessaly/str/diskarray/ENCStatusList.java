package tessaly.str.diskarray;

/** The enclosure controllers, and the replacement of their microprogram. */
public class ENCStatusList {
    /** The microprograms that were downloaded. */
    public ENCMicroRevision download_rev;
    /** State of the replacement, the library's own code. */
    public int exec_status;
    /** When the replacement began. */
    public ENCReplaceTime start_time;
    /** The time now. */
    public ENCReplaceTime now_time;
    /** Shortest time of a replacement, in the library's own unit. */
    public int replacetime_min;
    /** Longest time of a replacement, in the library's own unit. */
    public int replacetime_max;
    /** Whether <code>ctu</code> is valid, the library's own value. */
    public int validCTU;
    /** The enclosure controllers of the controller unit. */
    public ENCCTUStatus ctu;
    /** The units, 64 elements, mounted or not. */
    public ENCUnitStatus[] unit;
}
