package tessaly.str.diskarray;

/** Names an account. */
public class AccountIdentifier {
    /** At most 256 bytes. */
    public String user_id = "";
}
