package tessaly.str.diskarray;

/** Password and session settings of an array. Layout assumed. */
public class AccountOptionInfo {
    public int password_min_length;
    /** Whether idle sessions end by themselves. */
    public int session_timeout_used;
    public int session_timeout;
}
