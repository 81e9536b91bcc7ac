package tessaly.str.diskarray;

/** How a session is ended. */
public class LogoutOption {
    public int log_option;
}
