package tessaly.str.diskarray;

/** A unit that was found. */
public class DiscoverUnit {
    /** Kind of connection, 0 to 255. */
    public int connect_type;
    /** Address or device. */
    public String ip_dev;
    /** Product type code, 0 to 255. */
    public int qv_type;
    /** Device type code, 0 to 255. */
    public int device_type;
    /** Unit configuration code, 0 to 255. */
    public int unit_conf;
    /** Number of the controller that answered. */
    public int ctlno;
    /** Serial number. */
    public String serial;
    public int communication_port;
}
