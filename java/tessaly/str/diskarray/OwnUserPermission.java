package tessaly.str.diskarray;

/** What the session's own user may do. Layout assumed. */
public class OwnUserPermission {
    /** 9 elements. */
    public int[] operation_auth;
    /** 9 elements. */
    public int[] original_operation_auth;
    public int role;
}
