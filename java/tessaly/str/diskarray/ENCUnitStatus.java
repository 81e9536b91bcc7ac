package tessaly.str.diskarray;

/** The enclosure controllers of a drive unit. */
public class ENCUnitStatus {
    /** 2 elements. */
    public ENCStatus[] enc;
}
