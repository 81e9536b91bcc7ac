package tessaly.str.diskarray;

/** The hosts known at the ports of a controller. Layout assumed. */
public class WWNCtlInfo {
    /**
     * Always 8 elements, one for each port. Hand over as many, none of them null. Null in a new
     * object.
     */
    public WWNPortInfo[] port;
}
