package tessaly.str.diskarray;

/** A slice of what an array tells of itself: host group options. Layout assumed. */
public class ArrayAllInfo_Host {
    public int valid_index;
    public HGOption hgopt;
    public HGParameterID[] hgparamid;
    public HGParameterList2 hgparamlist2;
}
