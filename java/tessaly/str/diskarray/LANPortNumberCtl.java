package tessaly.str.diskarray;

/** The management port numbers of a controller. */
public class LANPortNumberCtl {
    /** Which of the numbers are valid, the library's own value. */
    public int valid_index;
    /** Normal port, the library's own value. */
    public int normal_port;
    /** Port number. */
    public int port_num;
    /** SSL port number. */
    public int ssl_port_num;
}
