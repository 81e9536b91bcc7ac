package tessaly.str.diskarray;

/** A ping from one iSCSI port, and how far it came. */
public class QViSCSIPingPort {
    public int port_valid;
    public int request_valid;
    /** At most 39 bytes. */
    public String ip_address = "";
    public int status;
    public int execute_count;
    public int success_count;
    public int schedule_count;
}
