package tessaly.str.diskarray;

/** An account of an array. Layout assumed. */
public class QVAccountBaseInfo {
    /** Name of the account; over the simulator empty where the element is not in use. */
    public String user_id;
    /** The library's own value. */
    public int set_passwd;
    /** The library's own value. */
    public String passwd;
    /** Type of the account, the library's own value. */
    public int account_type;
    /** Role of the account, the library's own number. */
    public int role;
    /** Whether the account is enabled, the library's own value. */
    public int account_enable;
}
