package tessaly.str.diskarray;

/**
 * The user LAN of a controller: as it is, and as it is to be set. Layout assumed. No text may be
 * null where it is handed over.
 */
public class QVUserLANDetail {
    /** Which settings the array supports, the library's own value. */
    public int support_index;
    /** Which settings are valid, the library's own value. */
    public int valid_index;
    /** Result of the setting, the library's own value. */
    public int setting_result;
    /** Whether the address is by DHCP, the library's own value. */
    public int dhcp;
    /** Ethernet address, at most 17 bytes; the name is spelled as in the library. */
    public String eather_address = "";
    /** IP address now in use, at most 39 bytes. */
    public String current_ipaddress = "";
    /** Subnet mask now in use, at most 39 bytes. */
    public String current_subnet = "";
    /** Gateway now in use, at most 39 bytes. */
    public String current_gateway = "";
    /** IPv6 address now in use, at most 39 bytes. */
    public String current_ipaddress_ipv6 = "";
    /** Link-local IPv6 address, at most 39 bytes. */
    public String link_ipv6 = "";
    /** Subnet prefix now in use, the library's own number. */
    public int current_subnet_prefix;
    /** IPv6 gateway now in use, at most 39 bytes. */
    public String current_gateway_ipv6 = "";
    /** Speed and duplex type of the link, the library's own value. */
    public int current_linkspeed_duplex;
    /** IP address to set, at most 39 bytes. */
    public String set_ipaddress = "";
    /** Subnet mask to set, at most 39 bytes. */
    public String set_subnet = "";
    /** Gateway to set, at most 39 bytes. */
    public String set_gateway = "";
}
