package tessaly.str.diskarray;

/** Where and how to look for a unit. */
public class DiscoverUnitRequest {
    /** Kind of connection, 0 to 255, the library's own code. */
    public int connect_type;
    /** Address or device, at most 255 bytes. */
    public String ip_dev = "";
    /** How to communicate, the library's own code. */
    public int communication_mode;
}
