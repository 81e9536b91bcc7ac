package tessaly.str.diskarray;

/** The state of an array's own list of users. */
public class QVUserRegist {
    public int num;
    public int option;
}
