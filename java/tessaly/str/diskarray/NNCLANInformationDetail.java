package tessaly.str.diskarray;

/** The LAN address of a network node controller. No text may be null where it is handed over. */
public class NNCLANInformationDetail {
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** IP address, at most 39 bytes. */
    public String ip_address = "";
    /** Subnet mask, at most 39 bytes. */
    public String subnet = "";
    /** Maximum transmission unit, the library's own value. */
    public int mtu;
    /** Negotiation of the link, the library's own value. */
    public int negotiation;
    /** Status of the setting, the library's own value. */
    public int set_status;
}
