package tessaly.str.diskarray;

/** Password and session settings of an array. Layout assumed. */
public class AccountOptionInfo {
    /** Length of the shortest password. */
    public int password_min_length;
    /** Whether sessions time out, the library's own value. */
    public int session_timeout_used;
    /** Session timeout, in the library's own unit. */
    public int session_timeout;
}
