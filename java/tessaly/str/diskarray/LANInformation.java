package tessaly.str.diskarray;

/** The LAN address of a controller. */
public class LANInformation {
    /** 0 to 255. */
    public int dhcp;
    /** At most 15 bytes. */
    public String ip_address = "";
    /** At most 15 bytes. */
    public String subnet = "";
    /** At most 15 bytes. */
    public String gateway = "";
    /** At most 17 bytes. */
    public String ether = "";
    /** 0 to 255. */
    public int lan_connect;
    public int mainte_ip_change_mode;
    public int mainte_ip_change_mode_new;
    public int negotiation;
}
