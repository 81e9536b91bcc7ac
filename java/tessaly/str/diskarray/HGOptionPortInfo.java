package tessaly.str.diskarray;

/** The options of a port's host groups. Layout assumed. */
public class HGOptionPortInfo {
    /**
     * Always 255 elements, one for each host group from number 0 on. Hand over as many, none of
     * them null. Null in a new object.
     */
    public HGOptionInfo[] hg;
}
