package tessaly.str.diskarray;

/** A slice of what an array tells of itself: host group options. Layout assumed. */
public class ArrayAllInfo_Host {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** The host groups' options. */
    public HGOption hgopt;
    /** Identifiers of host groups' parameters by controller, 2 elements. */
    public HGParameterID[] hgparamid;
    /** Parameters of host groups, second form. */
    public HGParameterList2 hgparamlist2;
}
