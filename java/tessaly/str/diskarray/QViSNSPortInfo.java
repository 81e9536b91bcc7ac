package tessaly.str.diskarray;

/** The iSNS server of one port. No text may be null where it is handed over. */
public class QViSNSPortInfo {
    /** Not 0 where the port is there. */
    public int port_valid;
    /** Whether the port is to be set, the library's own value. */
    public int set_valid;
    /** Whether iSNS is used, the library's own value. */
    public int isns_use;
    /** IP address of the server, at most 39 bytes. */
    public String ip_address = "";
    /** Port number of the server. */
    public int port_num;
}
