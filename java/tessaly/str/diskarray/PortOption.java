package tessaly.str.diskarray;

/** The options of all ports. Layout assumed. */
public class PortOption {
    public PortOptionValidIndex support_index;
    public PortOptionValidIndex valid_index;
    /** 2 elements. */
    public PortOptionCtlInfo[] ctl;
}
