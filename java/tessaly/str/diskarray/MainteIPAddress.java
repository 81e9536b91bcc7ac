package tessaly.str.diskarray;

/** An address for the maintenance LAN. Layout assumed. */
public class MainteIPAddress {
    public int set_ipversion;
    /** At most 39 bytes. */
    public String ip_addr = "";
    public int logout_instruction;
}
