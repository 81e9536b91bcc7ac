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
    /** How the maintenance address changes, the library's own value. */
    public int mainte_ip_change_mode;
    /** How it is to change from now on, the library's own value. */
    public int mainte_ip_change_mode_new;
    /** Negotiation of the link, the library's own value. */
    public int negotiation;
}
