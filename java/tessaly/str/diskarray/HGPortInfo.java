package tessaly.str.diskarray;

/** The host groups of a port. The name of <code>hg</code> is assumed. */
public class HGPortInfo {
    /** 0 to 255. */
    public int security;
    /** Always 128 elements. */
    public HGInfo[] hg;
}
