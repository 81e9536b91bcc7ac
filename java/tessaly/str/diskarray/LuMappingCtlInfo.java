package tessaly.str.diskarray;

/** The mapping of a controller's ports. */
public class LuMappingCtlInfo {
    /**
     * Always 8 elements, one for each port. Hand over as many, none of them null. Null in a new
     * object.
     */
    public LuMappingPortInfo[] port;
}
