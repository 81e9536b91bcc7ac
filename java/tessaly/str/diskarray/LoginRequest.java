package tessaly.str.diskarray;

/** Who logs in to an array. */
public class LoginRequest {
    /** Name of the account, at most 256 bytes. */
    public String user_id = "";
    /** Its password, at most 256 bytes. */
    public String passwd = "";
    /** Log option, the library's own value. */
    public int log_option;
    /** Log text, at most 127 bytes. */
    public String log_string = "";
}
