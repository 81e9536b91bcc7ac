package tessaly.str.diskarray;

/** The user LAN of a controller: as it is, and as it is to be set. Layout assumed. */
public class QVUserLANDetail {
    public int support_index;
    public int valid_index;
    public int setting_result;
    public int dhcp;
    /** At most 17 bytes. */
    public String eather_address = "";
    /** At most 39 bytes, like all addresses here. */
    public String current_ipaddress = "";
    public String current_subnet = "";
    public String current_gateway = "";
    public String current_ipaddress_ipv6 = "";
    public String link_ipv6 = "";
    public int current_subnet_prefix;
    public String current_gateway_ipv6 = "";
    public int current_linkspeed_duplex;
    public String set_ipaddress = "";
    public String set_subnet = "";
    public String set_gateway = "";
}
