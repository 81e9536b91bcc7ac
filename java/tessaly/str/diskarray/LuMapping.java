package tessaly.str.diskarray;

/** The mapping of all ports. The name of <code>ctl</code> is assumed. */
public class LuMapping {
    public int HostGroupValid;
    public int ctrl_flag;
    public int mapping_mode;
    /** 2 elements. */
    public LuMappingCtlInfo[] ctl;
}
