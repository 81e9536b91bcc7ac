package tessaly.str.diskarray;

/** The options of all host groups. Layout assumed. */
public class HGOption {
    public HGOptionValidIndex support_index;
    public HGOptionValidIndex valid_index;
    public int HostGroupValid;
    /** 2 elements. */
    public HGOptionCtlInfo[] ctl;
}
