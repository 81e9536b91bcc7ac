package tessaly.str.diskarray;

/** What the session's own user may do. Layout assumed. */
public class OwnUserPermission {
    /** Operation rights, 9 elements: the library's own values. */
    public int[] operation_auth;
    /** Original operation rights, 9 elements: the library's own values. */
    public int[] original_operation_auth;
    /** Role of the user, the library's own number. */
    public int role;
}
