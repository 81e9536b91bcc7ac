package tessaly.str.diskarray;

/** The iSCSI ports of one controller. */
public class QViSCSIPortCTLInfo {
    /** 8 elements. */
    public QViSCSIPortPortInfo[] port;
}
