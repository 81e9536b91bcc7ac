package tessaly.str.diskarray;

/**
 * Who asks for the summary of an array: a user, or a session that is open.
 *
 * <p>A field that is null ends the reading: it and the fields behind it reach the library as they
 * lay in memory.
 */
public class ArrayConditionRequest {
    /**
     * How the caller is known, the library's own value. Over the simulator 0 stands for the
     * session, any other value for user and password.
     */
    public int login_request;
    /** Name of the user's account, at most 256 bytes. */
    public String user_id = "";
    /** Password of the user's account, at most 256 bytes. */
    public String passwd = "";
    /** The session from a login. */
    public QVSessionInfo session = new QVSessionInfo();
}
