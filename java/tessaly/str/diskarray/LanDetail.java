package tessaly.str.diskarray;

/** The LAN address and link of a controller. */
public class LanDetail {
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
    public int duplex_type;
    /** 0 to 255. */
    public int link_speed;
}
