package tessaly.str.diskarray;

/** Names an account. */
public class AccountIdentifier {
    /** Name of the account, at most 256 bytes. */
    public String user_id = "";
}
