package tessaly.str.diskarray;

/** A request to clear the audit log. */
public class AuditLogInitRequest {
    /** What of the request is valid, the library's own value. */
    public int set_valid;
}
