package tessaly.str.diskarray;

/** The warning that an array shows before a login. Layout assumed. */
public class AccountBanner {
    /** Whether it is shown, the library's own value. */
    public int warning_banner_display;
    /** Text of the warning, at most 5,999 bytes. */
    public String warning_banner = "";
}
