package tessaly.str.diskarray;

/** The hosts known at the ports of a controller. Layout assumed. */
public class WWNCtlInfo {
    /** 8 elements. */
    public WWNPortInfo[] port;
}
