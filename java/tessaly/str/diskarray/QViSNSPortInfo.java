package tessaly.str.diskarray;

/** The iSNS server of one port. */
public class QViSNSPortInfo {
    public int port_valid;
    public int set_valid;
    public int isns_use;
    /** At most 39 bytes. */
    public String ip_address = "";
    public int port_num;
}
