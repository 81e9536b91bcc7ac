package tessaly.str.diskarray;

/** The maintenance LAN of a controller. */
public class MainteLanInfoDetail {
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** IP address, at most 39 bytes. */
    public String ip_address;
    /** Subnet mask, at most 39 bytes. */
    public String subnet;
    /** IPv4 gateway, at most 39 bytes. */
    public String gateway_ipv4;
    /** IPv6 address, at most 39 bytes. */
    public String ip_address_ipv6;
    /** Subnet prefix, the library's own number. */
    public int subnet_prefix;
    /** IPv6 gateway, at most 39 bytes. */
    public String gateway_ipv6;
    /** Status of the connection, the library's own value. */
    public int connect_status;
}
