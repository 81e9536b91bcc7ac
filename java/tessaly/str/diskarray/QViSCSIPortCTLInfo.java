package tessaly.str.diskarray;

/** The iSCSI ports of one controller. */
public class QViSCSIPortCTLInfo {
    /**
     * Always 8 elements, one for each port. Hand over as many, none of them null. Null in a new
     * object.
     */
    public QViSCSIPortPortInfo[] port;
}
