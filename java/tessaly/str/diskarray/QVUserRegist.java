package tessaly.str.diskarray;

/** The state of an array's own list of users. */
public class QVUserRegist {
    /** Number of users in the list. */
    public int num;
    /** The library's own. */
    public int option;
}
