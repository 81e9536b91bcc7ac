package tessaly.str.diskarray;

/** The host groups of a port. */
public class HGPortInfo {
    /** 0 to 255. */
    public int security;
    /** Always 128 elements. */
    public HGInfo[] hg;
}
