package tessaly.str.diskarray;

/** The addresses of one iSCSI port. No text may be null where it is handed over. */
public class QViSCSIPortPortInfo {
    /** Not 0 where the port is there. */
    public int port_valid;
    /** Whether the port is to be set, the library's own value. */
    public int set_valid;
    /** IP address, at most 39 bytes. */
    public String ip_address = "";
    /** Subnet mask, at most 39 bytes. */
    public String subnet = "";
    /** Gateway, at most 39 bytes. */
    public String gateway = "";
    /** Port number. */
    public int port_num;
    /** Ethernet address, at most 19 bytes. */
    public String ether = "";
    /** Keep-alive timer, in the library's own unit. */
    public int keep_alive_timer;
    /** Maximum transmission unit, the library's own value. */
    public int mtu;
    /** Status of the setting, the library's own value. */
    public int set_status;
    /** Number of hosts at the port. */
    public int host_count;
}
