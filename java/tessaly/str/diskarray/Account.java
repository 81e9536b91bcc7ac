package tessaly.str.diskarray;

/** An account to create or to change. */
public class Account {
    /** Name of the account, at most 256 bytes. */
    public String user_id = "";
    /** Whether <code>passwd</code> is to be set, the library's own value. */
    public int set_passwd;
    /** New password, at most 256 bytes. */
    public String passwd = "";
    /** Type of the account, the library's own value. */
    public int account_type;
    /** Role of the account, the library's own number. */
    public int role;
    /** Whether the account is enabled, the library's own value. */
    public int account_enable;
}
