package tessaly.str.diskarray;

/** The settings of the audit log. To change them, change what the query returned. */
public class QVAuditLogInformation {
    /** Option, the library's own value. */
    public int option;
    /** What of the settings is valid, the library's own value. */
    public int set_valid;
    /** Syslog servers. Null in a new object. */
    public QVAuditLogSyslogServerInfo auditlog_server;
    /** The array's own log. Null in a new object. */
    public QVAuditLogInternalLog auditlog_internallog;
}
