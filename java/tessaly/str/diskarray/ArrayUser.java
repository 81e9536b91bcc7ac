package tessaly.str.diskarray;

/** A user of an array's own list. */
public class ArrayUser {
    /** At most 16 bytes. */
    public String user = "";
    /** At most 16 bytes. */
    public String passwd = "";
}
