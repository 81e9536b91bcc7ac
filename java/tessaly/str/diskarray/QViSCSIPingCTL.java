package tessaly.str.diskarray;

/** The pings from the ports of one controller. Layout assumed. */
public class QViSCSIPingCTL {
    /**
     * Always 8 elements, one for each port. Hand over as many, none of them null. Null in a new
     * object.
     */
    public QViSCSIPingPort[] port;
}
