package tessaly.str.diskarray;

/** Who checks for alerts. */
public class AlertCheckUser {
    /** Name of the account, at most 256 bytes. */
    public String user_id = "";
    /** Its password, at most 256 bytes. */
    public String passwd = "";
    /** Whether the account is used, the library's own switch. */
    public int account_enable;
}
