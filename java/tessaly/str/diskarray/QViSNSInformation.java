package tessaly.str.diskarray;

/** The iSNS servers of an array. Layout assumed. */
public class QViSNSInformation {
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public QViSNSCTLInfo[] ctl;
}
