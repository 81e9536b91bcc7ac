package tessaly.str.diskarray;

/** The mapping of one port. */
public class LuMappingPortList {
    public int option;
    public int mapping_mode;
    public LuMappingPortInfo port;
}
