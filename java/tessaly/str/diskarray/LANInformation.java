package tessaly.str.diskarray;

/** The LAN address of a controller. No text may be null where it is handed over. */
public class LANInformation {
    /** Whether the address is by DHCP, 0 to 255, the library's own value. */
    public int dhcp;
    /** IP address, at most 15 bytes. */
    public String ip_address = "";
    /** Subnet mask, at most 15 bytes. */
    public String subnet = "";
    /** Gateway, at most 15 bytes. */
    public String gateway = "";
    /** Ethernet address, at most 17 bytes. */
    public String ether = "";
    /** Whether the LAN is connected, 0 to 255, the library's own value. */
    public int lan_connect;
    /** Mode of changing the maintenance address, the library's own value. */
    public int mainte_ip_change_mode;
    /** New mode of changing the maintenance address, the library's own value. */
    public int mainte_ip_change_mode_new;
    /** Negotiation of the link, the library's own value. */
    public int negotiation;
}
