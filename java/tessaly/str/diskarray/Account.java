package tessaly.str.diskarray;

/** An account to create or to change. */
public class Account {
    /** At most 256 bytes. */
    public String user_id = "";
    /** Whether <code>passwd</code> is to be set. */
    public int set_passwd;
    /** At most 256 bytes. */
    public String passwd = "";
    public int account_type;
    public int role;
    /** Whether the account may log in. */
    public int account_enable;
}
