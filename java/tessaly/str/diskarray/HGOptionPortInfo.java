package tessaly.str.diskarray;

/** The options of a port's host groups. Layout assumed. */
public class HGOptionPortInfo {
    /** 255 elements. */
    public HGOptionInfo[] hg;
}
