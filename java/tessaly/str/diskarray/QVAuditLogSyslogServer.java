package tessaly.str.diskarray;

/** A syslog server. */
public class QVAuditLogSyslogServer {
    /** Whether the log is sent to it, the library's own switch. */
    public int server_used;
    /** Its address, at most 39 bytes. */
    public String ip_address = "";
}
