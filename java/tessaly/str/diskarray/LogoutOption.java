package tessaly.str.diskarray;

/** The log option of a logout. */
public class LogoutOption {
    /** Log option, the library's own value. */
    public int log_option;
}
