package tessaly.str.diskarray;

/** The iSCSI targets of an array. Layout assumed. */
public class QViSCSITargetInformationAll {
    /** Option, the library's own value. */
    public int option;
    /** Always 2 elements, one for each controller. */
    public QViSCSITargetCTLInfo[] ctl;
}
