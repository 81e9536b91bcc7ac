package tessaly.str.diskarray;

/** The mapping of one port. */
public class LuMappingPortList {
    /** Option, the library's own value. */
    public int option;
    /** Mapping mode, the library's own value. */
    public int mapping_mode;
    /** The mapping of the port; not null where it is handed over. Null in a new object. */
    public LuMappingPortInfo port;
}
