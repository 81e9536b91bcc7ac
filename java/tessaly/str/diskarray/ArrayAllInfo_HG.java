package tessaly.str.diskarray;

/** A slice of what an array tells of itself: host groups. Layout assumed. */
public class ArrayAllInfo_HG {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** The host groups. */
    public HGList hg;
    /** The hosts' WWNs by host group. */
    public WWNHGInformation wwnhg;
}
