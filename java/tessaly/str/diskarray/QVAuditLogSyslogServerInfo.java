package tessaly.str.diskarray;

/** The syslog servers that the audit log is sent to. */
public class QVAuditLogSyslogServerInfo {
    /** Whether the log is sent at all, the library's own switch. */
    public int serverall_used;
    /** 2 elements, at most. Null in a new object. */
    public QVAuditLogSyslogServer[] server;
}
