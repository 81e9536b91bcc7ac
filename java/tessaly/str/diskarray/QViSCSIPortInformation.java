package tessaly.str.diskarray;

/** The iSCSI ports of an array. Layout assumed. */
public class QViSCSIPortInformation {
    /** 2 elements. */
    public QViSCSIPortCTLInfo[] ctl;
}
