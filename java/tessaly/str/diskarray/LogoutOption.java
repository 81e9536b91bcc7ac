package tessaly.str.diskarray;

/** How a session is ended. */
public class LogoutOption {
    /** What the array logs of it, the library's own. */
    public int log_option;
}
