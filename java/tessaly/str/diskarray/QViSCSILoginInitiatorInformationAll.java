package tessaly.str.diskarray;

/** The iSCSI initiators that are logged in to an array. Layout assumed. */
public class QViSCSILoginInitiatorInformationAll {
    /** 2 elements. */
    public QViSCSILoginInitiatorCTLInfo[] ctl;
}
