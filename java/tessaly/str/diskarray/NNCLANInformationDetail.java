package tessaly.str.diskarray;

/** The LAN address of a network controller. */
public class NNCLANInformationDetail {
    public int valid_index;
    /** At most 39 bytes. */
    public String ip_address = "";
    /** At most 39 bytes. */
    public String subnet = "";
    public int mtu;
    public int negotiation;
    public int set_status;
}
