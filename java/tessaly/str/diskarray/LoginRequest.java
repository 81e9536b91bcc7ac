package tessaly.str.diskarray;

/** Who logs in to an array. */
public class LoginRequest {
    /** Name of the account, at most 256 bytes. */
    public String user_id = "";
    /** Its password, at most 256 bytes. */
    public String passwd = "";
    /** What the array logs of it, the library's own. */
    public int log_option;
    /** Text for the array's log, at most 127 bytes. */
    public String log_string = "";
}
