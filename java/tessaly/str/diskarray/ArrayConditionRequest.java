package tessaly.str.diskarray;

/** Who asks for the summary of an array: a user, or a session that is open. */
public class ArrayConditionRequest {
    public int login_request;
    /** At most 256 bytes. */
    public String user_id = "";
    /** At most 256 bytes. */
    public String passwd = "";
    public QVSessionInfo session = new QVSessionInfo();
}
