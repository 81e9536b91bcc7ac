package tessaly.str.diskarray;

/** The state of an array's own list of users. */
public class QVUserRegist {
    /** Number of users in the list. */
    public int num;
    /** Option, the library's own value. */
    public int option;
}
