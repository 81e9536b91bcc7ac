package tessaly.str.diskarray;

/** The iSCSI initiators that are logged in to one controller. Layout assumed. */
public class QViSCSILoginInitiatorCTLInfo {
    /** Always 8 elements, one for each port. */
    public QViSCSILoginInitiatorPortInfo[] port;
}
