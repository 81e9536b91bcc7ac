package tessaly.str.diskarray;

/**
 * An address for the maintenance LAN. Layout assumed. No text may be null where it is handed over.
 */
public class MainteIPAddress {
    /** IP version, the library's own value. */
    public int set_ipversion;
    /** IP address, at most 39 bytes. */
    public String ip_addr = "";
    /** Logout instruction, the library's own value. */
    public int logout_instruction;
}
