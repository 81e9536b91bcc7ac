package tessaly.str.diskarray;

/** The network of a controller. */
public class AutoMigrationAccessPathNetwork {
    public int dhcp_mode;
    /** At most 15 bytes. */
    public String ip_address = "";
    /** At most 15 bytes. */
    public String subnet = "";
    /** At most 15 bytes. */
    public String gateway = "";
    public int linkspeed_duplex;
}
