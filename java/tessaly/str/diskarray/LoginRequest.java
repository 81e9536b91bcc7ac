package tessaly.str.diskarray;

/** Who logs in to an array. */
public class LoginRequest {
    /** At most 256 bytes. */
    public String user_id = "";
    /** At most 256 bytes. */
    public String passwd = "";
    public int log_option;
    /** Text for the array's log, at most 127 bytes. */
    public String log_string = "";
}
