package tessaly.str.diskarray;

/** The network of a controller. */
public class AutoMigrationAccessPathNetwork {
    /** DHCP mode, the library's own value. */
    public int dhcp_mode;
    /** IP address in dotted form, at most 15 bytes; not null. */
    public String ip_address = "";
    /** Subnet mask in dotted form, at most 15 bytes; not null. */
    public String subnet = "";
    /** Gateway in dotted form, at most 15 bytes; not null. */
    public String gateway = "";
    /** Speed and duplex of the link, the library's own value. */
    public int linkspeed_duplex;
}
