package tessaly.str.diskarray;

/** A user's change of the own password. */
public class OwnPasswordChange {
    /** At most 256 bytes. */
    public String user_id = "";
    /** At most 256 bytes. */
    public String old_passwd = "";
    /** At most 256 bytes. */
    public String new_passwd = "";
}
