package tessaly.str.diskarray;

/** The iSCSI ports of an array. Layout assumed. */
public class QViSCSIPortInformation {
    /**
     * Always 2 elements, one for each controller. Hand over as many, none of them null. Null in a
     * new object.
     */
    public QViSCSIPortCTLInfo[] ctl;
}
