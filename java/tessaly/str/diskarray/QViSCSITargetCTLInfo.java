package tessaly.str.diskarray;

/** The iSCSI targets of one controller. */
public class QViSCSITargetCTLInfo {
    /** 8 elements. */
    public QViSCSITargetPortInfo[] port;
}
