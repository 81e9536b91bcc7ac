package tessaly.str.diskarray;

/** The iSCSI initiators that are logged in to an array. Layout assumed. */
public class QViSCSILoginInitiatorInformationAll {
    /** Always 2 elements, one for each controller. */
    public QViSCSILoginInitiatorCTLInfo[] ctl;
}
