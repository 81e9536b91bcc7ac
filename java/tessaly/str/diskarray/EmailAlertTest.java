package tessaly.str.diskarray;

/** A request for a test mail. */
public class EmailAlertTest {
    public int ctl;
}
