package tessaly.str.diskarray;

/** The audit log that the array keeps itself. */
public class QVAuditLogInternalLog {
    /** Whether it is kept, the library's own switch. */
    public int internallog_used;
}
