package tessaly.str.diskarray;

/** A request for a test mail. */
public class EmailAlertTest {
    /** Controller that sends it, the library's own number. */
    public int ctl;
}
