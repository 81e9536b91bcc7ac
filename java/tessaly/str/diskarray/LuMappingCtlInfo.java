package tessaly.str.diskarray;

/** The mapping of a controller's ports. */
public class LuMappingCtlInfo {
    /** 8 elements. */
    public LuMappingPortInfo[] port;
}
