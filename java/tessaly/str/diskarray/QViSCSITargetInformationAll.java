package tessaly.str.diskarray;

/** The iSCSI targets of an array. Layout assumed. */
public class QViSCSITargetInformationAll {
    public int option;
    /** 2 elements. */
    public QViSCSITargetCTLInfo[] ctl;
}
