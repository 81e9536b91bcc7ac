package tessaly.str.diskarray;

/** A Fibre Channel port. Layout assumed. */
public class FibreInformationPort {
    /** At most 16 bytes. */
    public String node_name = "";
    /** At most 16 bytes. */
    public String port_name = "";
    /** At most 6 bytes. */
    public String n_port_id = "";
    /** At most 6 bytes. */
    public String get_address = "";
    public int frame_size;
    public int if_board;
    public int support_speed;
    public int set_speed;
    public int refer_speed;
    public int connect_valid;
    /** 2 elements. */
    public FibreInformationConnector[] connector;
}
