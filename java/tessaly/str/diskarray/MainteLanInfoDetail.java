package tessaly.str.diskarray;

/** The maintenance LAN of a controller. */
public class MainteLanInfoDetail {
    public int valid_index;
    /** At most 39 bytes, like all addresses here. */
    public String ip_address;
    public String subnet;
    public String gateway_ipv4;
    public String ip_address_ipv6;
    public int subnet_prefix;
    public String gateway_ipv6;
    public int connect_status;
}
