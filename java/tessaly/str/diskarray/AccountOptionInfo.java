package tessaly.str.diskarray;

/** Password and session settings of an array. Layout assumed. */
public class AccountOptionInfo {
    /** Length of the shortest password. */
    public int password_min_length;
    /** Whether idle sessions end by themselves. */
    public int session_timeout_used;
    /** Time after which they end, in the library's own unit. */
    public int session_timeout;
}
