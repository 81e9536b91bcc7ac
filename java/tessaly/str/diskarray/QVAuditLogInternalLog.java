package tessaly.str.diskarray;

/** The audit log that the array keeps itself. */
public class QVAuditLogInternalLog {
    public int internallog_used;
}
