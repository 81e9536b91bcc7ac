package tessaly.str.diskarray;

/** The host group parameters that there are to choose from. Layout assumed. */
public class HGParameterList {
    public int platform_count;
    /** Always 20 elements. */
    public PlatformInfo[] platinfo;
    public int special_mode_count;
    /** Always 20 elements. */
    public SpecialmodeInfo[] specialinfo;
}
