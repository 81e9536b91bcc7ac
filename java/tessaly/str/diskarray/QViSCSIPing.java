package tessaly.str.diskarray;

/** The pings from an array. Layout assumed. */
public class QViSCSIPing {
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public QViSCSIPingCTL[] ctl;
}
