package tessaly.str.diskarray;

/** The hosts of the host groups of a controller. */
public class WWNHGCtlInfo {
    /** 8 elements. */
    public WWNHGPortInfo[] port;
}
