package tessaly.str.diskarray;

/** The enclosure controllers of the controller unit. */
public class ENCCTUStatus {
    /** The enclosure controllers, 2 elements. */
    public ENCStatus[] enc;
}
