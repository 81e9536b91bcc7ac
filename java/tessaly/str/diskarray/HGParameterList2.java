package tessaly.str.diskarray;

/** The host group parameters in their second form. Layout assumed. */
public class HGParameterList2 {
    /** Number of platforms; <code>platinfo</code> has its full length all the same. */
    public int platform_count;
    /** Always 20 elements. */
    public PlatformInfo2[] platinfo;
}
