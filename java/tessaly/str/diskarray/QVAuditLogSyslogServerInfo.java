package tessaly.str.diskarray;

/** The syslog servers that the audit log is sent to. */
public class QVAuditLogSyslogServerInfo {
    public int serverall_used;
    /** 2 elements. */
    public QVAuditLogSyslogServer[] server;
}
