package tessaly.str.diskarray;

/** A user's change of the own password. */
public class OwnPasswordChange {
    /** Name of the own account, at most 256 bytes. */
    public String user_id = "";
    /** Password until now, at most 256 bytes. */
    public String old_passwd = "";
    /** New password, at most 256 bytes. */
    public String new_passwd = "";
}
