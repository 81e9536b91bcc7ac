package tessaly.str.diskarray;

/** The iSCSI targets of one controller. */
public class QViSCSITargetCTLInfo {
    /** Always 8 elements, one for each port. */
    public QViSCSITargetPortInfo[] port;
}
