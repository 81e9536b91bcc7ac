package tessaly.str.diskarray;

/** The host group parameters that there are to choose from. Layout assumed. */
public class HGParameterList {
    /** Number of platforms; <code>platinfo</code> has its full length all the same. */
    public int platform_count;
    /** Always 20 elements. */
    public PlatformInfo[] platinfo;
    /** Number of special modes; <code>specialinfo</code> has its full length all the same. */
    public int special_mode_count;
    /** Always 20 elements. */
    public SpecialmodeInfo[] specialinfo;
}
