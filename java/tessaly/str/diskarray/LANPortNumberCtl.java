package tessaly.str.diskarray;

/** The management port numbers of a controller. */
public class LANPortNumberCtl {
    public int valid_index;
    public int normal_port;
    public int port_num;
    public int ssl_port_num;
}
