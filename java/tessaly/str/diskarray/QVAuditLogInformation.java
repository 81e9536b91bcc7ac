package tessaly.str.diskarray;

/** The settings of the audit log. */
public class QVAuditLogInformation {
    public int option;
    public int set_valid;
    public QVAuditLogSyslogServerInfo auditlog_server;
    public QVAuditLogInternalLog auditlog_internallog;
}
