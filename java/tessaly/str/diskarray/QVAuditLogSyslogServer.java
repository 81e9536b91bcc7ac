package tessaly.str.diskarray;

/** A syslog server. */
public class QVAuditLogSyslogServer {
    public int server_used;
    /** At most 39 bytes. */
    public String ip_address = "";
}
