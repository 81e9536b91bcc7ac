package tessaly.str.diskarray;

/** Who checks for alerts. */
public class AlertCheckUser {
    /** Name of the account, at most 256 bytes. */
    public String user_id = "";
    /** Its password, at most 256 bytes. */
    public String passwd = "";
    /** Whether the account is enabled, the library's own value. */
    public int account_enable;
}
