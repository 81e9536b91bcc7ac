package tessaly.str.diskarray;

/** The management port numbers of a controller. */
public class LANPortNumberCtl {
    /** Which of the numbers are valid, the library's own value. */
    public int valid_index;
    /** Normal port, the library's own value. */
    public int normal_port;
    /** TCP port number without encryption. */
    public int port_num;
    /** TCP port number with encryption. */
    public int ssl_port_num;
}
