package tessaly.str.diskarray;

/** A slice of what an array tells of itself: host groups. Layout assumed. */
public class ArrayAllInfo_HG {
    public int valid_index;
    public HGList hg;
    public WWNHGInformation wwnhg;
}
