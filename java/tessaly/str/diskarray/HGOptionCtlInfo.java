package tessaly.str.diskarray;

/** The options of the host groups of a controller. Layout assumed. */
public class HGOptionCtlInfo {
    /**
     * Always 8 elements, one for each port. Hand over as many, none of them null. Null in a new
     * object.
     */
    public HGOptionPortInfo[] port;
}
