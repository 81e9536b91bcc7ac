package tessaly.str.diskarray;

/** The LAN address and link of a controller. No text may be null where it is handed over. */
public class LanDetail {
    /** Whether the address is by DHCP, the library's own value. */
    public int dhcp;
    /** IP address, at most 15 bytes. */
    public String ip_address = "";
    /** Subnet mask, at most 15 bytes. */
    public String subnet = "";
    /** Gateway, at most 15 bytes. */
    public String gateway = "";
    /** Ethernet address, at most 17 bytes. */
    public String ether = "";
    /** Duplex type of the link, 0 to 255, the library's own value. */
    public int duplex_type;
    /** Speed of the link, 0 to 255, the library's own value. */
    public int link_speed;
}
