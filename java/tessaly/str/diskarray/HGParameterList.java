package tessaly.str.diskarray;

/** The host group parameters that there are to choose from. */
public class HGParameterList {
    public int platform_count;
    /** Always 20 elements. */
    public PlatformInfo[] platinfo;
    public int special_mode_count;
    /** Always 20 elements. */
    public SpecialmodeInfo[] specialinfo;
}
