package tessaly.str.diskarray;

/** The addresses of one iSCSI port. */
public class QViSCSIPortPortInfo {
    public int port_valid;
    public int set_valid;
    /** At most 39 bytes. */
    public String ip_address = "";
    /** At most 39 bytes. */
    public String subnet = "";
    /** At most 39 bytes. */
    public String gateway = "";
    public int port_num;
    /** At most 19 bytes. */
    public String ether = "";
    public int keep_alive_timer;
    public int mtu;
    public int set_status;
    public int host_count;
}
