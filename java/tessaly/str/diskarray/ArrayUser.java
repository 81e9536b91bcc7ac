package tessaly.str.diskarray;

/** A user of an array's own list. */
public class ArrayUser {
    /** Name, at most 16 bytes. */
    public String user = "";
    /** Password, at most 16 bytes. */
    public String passwd = "";
}
