package tessaly.str.diskarray;

/** The iSCSI initiators that are logged in to one controller. Layout assumed. */
public class QViSCSILoginInitiatorCTLInfo {
    /** 8 elements. */
    public QViSCSILoginInitiatorPortInfo[] port;
}
