package tessaly.str.diskarray;

/** A request to clear the audit log. */
public class AuditLogInitRequest {
    public int set_valid;
}
