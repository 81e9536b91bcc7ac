package tessaly.str.diskarray;

/** The mapping of a port's host groups or targets. The name of <code>hg</code> is assumed. */
public class LuMappingPortInfo {
    /** Security of the port, the library's own value. */
    public int security;
    /** Number of host groups or targets that the port can have. */
    public int hg_tg_max_count;
    /**
     * Always 255 elements, one for each host group or target from number 0 on. Hand over as many,
     * none of them null. Null in a new object.
     */
    public LuMappingHGInfo[] hg;
}
