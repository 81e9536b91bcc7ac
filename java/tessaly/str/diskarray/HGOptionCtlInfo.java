package tessaly.str.diskarray;

/** The options of the host groups of a controller. Layout assumed. */
public class HGOptionCtlInfo {
    /** 8 elements. */
    public HGOptionPortInfo[] port;
}
