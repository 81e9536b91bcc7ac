package tessaly.str.diskarray;

/** A unit that was found. Its codes are the library's own. */
public class DiscoverUnit {
    /** Kind of connection, 0 to 255. */
    public int connect_type;
    /** Address or device. */
    public String ip_dev;
    /** Product type, 0 to 255. */
    public int qv_type;
    /** Device type, 0 to 255. */
    public int device_type;
    /** Unit configuration, 0 to 255. */
    public int unit_conf;
    /** Controller number, 0 to 255. */
    public int ctlno;
    /** Serial number, at most 10 bytes. */
    public String serial;
    /** Port of the communication with the unit, the library's own number. */
    public int communication_port;
}
