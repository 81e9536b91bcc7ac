package tessaly.str.diskarray;

/** Who checks for alerts. */
public class AlertCheckUser {
    /** At most 256 bytes. */
    public String user_id = "";
    /** At most 256 bytes. */
    public String passwd = "";
    public int account_enable;
}
