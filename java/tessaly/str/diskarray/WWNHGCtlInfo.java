package tessaly.str.diskarray;

/** The hosts of the host groups of a controller. Layout assumed. */
public class WWNHGCtlInfo {
    /**
     * Always 8 elements, one for each port. Hand over as many, none of them null. Null in a new
     * object.
     */
    public WWNHGPortInfo[] port;
}
