package tessaly.str.diskarray;

/** The iSCSI ports of an array. */
public class QViSCSIPortInformation {
    /** 2 elements. */
    public QViSCSIPortCTLInfo[] ctl;
}
