package tessaly.str.diskarray;

/** The mapping of a port's host groups or targets. The name of <code>hg</code> is assumed. */
public class LuMappingPortInfo {
    public int security;
    public int hg_tg_max_count;
    /** 255 elements. */
    public LuMappingHGInfo[] hg;
}
