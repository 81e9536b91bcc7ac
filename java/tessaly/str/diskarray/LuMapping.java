package tessaly.str.diskarray;

/** The mapping of all ports. The name of <code>ctl</code> is assumed. */
public class LuMapping {
    /** Whether host groups are valid, the library's own value. */
    public int HostGroupValid;
    /** Control flag, the library's own value. */
    public int ctrl_flag;
    /** Mapping mode, the library's own value. */
    public int mapping_mode;
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public LuMappingCtlInfo[] ctl;
}
