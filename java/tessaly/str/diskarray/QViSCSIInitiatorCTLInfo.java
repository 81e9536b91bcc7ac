package tessaly.str.diskarray;

/** The registered iSCSI initiators of one controller. Layout assumed. */
public class QViSCSIInitiatorCTLInfo {
    /** 8 elements. */
    public QViSCSIInitiatorPortInfo[] port;
}
