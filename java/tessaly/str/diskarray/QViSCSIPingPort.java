package tessaly.str.diskarray;

/** A ping from one iSCSI port, and how far it came. No text may be null where it is handed over. */
public class QViSCSIPingPort {
    /** Not 0 where the port is there. */
    public int port_valid;
    /** Whether the port is to ping, the library's own value. */
    public int request_valid;
    /** IP address to ping, at most 39 bytes. */
    public String ip_address = "";
    /** Status of the ping, the library's own value. */
    public int status;
    /** Number of pings that were sent. */
    public int execute_count;
    /** Number of pings that were answered. */
    public int success_count;
    /** Number of pings to send. */
    public int schedule_count;
}
