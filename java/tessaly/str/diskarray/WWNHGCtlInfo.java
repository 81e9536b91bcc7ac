package tessaly.str.diskarray;

/** The hosts of the host groups of a controller. Layout assumed. */
public class WWNHGCtlInfo {
    /** 8 elements. */
    public WWNHGPortInfo[] port;
}
