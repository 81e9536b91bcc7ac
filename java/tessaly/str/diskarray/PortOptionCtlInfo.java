package tessaly.str.diskarray;

/** The options of a controller's ports. Layout assumed. */
public class PortOptionCtlInfo {
    /** 8 elements. */
    public int[] lip_mode;
    /** 8 elements. */
    public int[] port_common_opt;
}
