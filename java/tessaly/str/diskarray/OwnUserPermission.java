package tessaly.str.diskarray;

/** What the session's own user may do. Layout assumed. */
public class OwnUserPermission {
    /** 9 elements, one a kind of operation, the library's own values. */
    public int[] operation_auth;
    /** 9 elements, likewise. */
    public int[] original_operation_auth;
    /** Role of the user, the library's own number. */
    public int role;
}
