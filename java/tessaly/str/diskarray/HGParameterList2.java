package tessaly.str.diskarray;

/** The host group parameters in their second form. Layout assumed. */
public class HGParameterList2 {
    public int platform_count;
    /** Always 20 elements. */
    public PlatformInfo2[] platinfo;
}
