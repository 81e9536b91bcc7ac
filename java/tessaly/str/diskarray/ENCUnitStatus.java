package tessaly.str.diskarray;

/** The enclosure controllers of a unit. */
public class ENCUnitStatus {
    /** The enclosure controllers, 2 elements. */
    public ENCStatus[] enc;
}
