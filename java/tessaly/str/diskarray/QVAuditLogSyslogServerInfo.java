package tessaly.str.diskarray;

/** The syslog servers that the audit log is sent to. */
public class QVAuditLogSyslogServerInfo {
    /** Whether the log is sent at all, the library's own switch. */
    public int serverall_used;
    /** At most 2 elements; always 2 in a result. Null in a new object. */
    public QVAuditLogSyslogServer[] server;
}
