package tessaly.str.diskarray;

/** A Fibre Channel port. Layout assumed. No text may be null where it is handed over. */
public class FibreInformationPort {
    /** Node name, at most 16 bytes. */
    public String node_name = "";
    /** Port name, at most 16 bytes. */
    public String port_name = "";
    /** N-port ID, at most 6 bytes. */
    public String n_port_id = "";
    /** Address that the port has got, at most 6 bytes. */
    public String get_address = "";
    /** Frame size, in the library's own unit. */
    public int frame_size;
    /** Interface board, the library's own value. */
    public int if_board;
    /** Speeds that the port supports, the library's own value. */
    public int support_speed;
    /** Speed that is set, the library's own value. */
    public int set_speed;
    /** Reference speed, the library's own value. */
    public int refer_speed;
    /** Which connectors are valid, the library's own value. */
    public int connect_valid;
    /**
     * Always 2 elements, one for each connector. Hand over as many, none of them null. Null in a
     * new object.
     */
    public FibreInformationConnector[] connector;
}
