package tessaly.str.diskarray;

/** An account of an array. Layout assumed. */
public class QVAccountBaseInfo {
    public String user_id;
    public int set_passwd;
    public String passwd;
    public int account_type;
    public int role;
    public int account_enable;
}
