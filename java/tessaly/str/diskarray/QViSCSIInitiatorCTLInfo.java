package tessaly.str.diskarray;

/** The registered iSCSI initiators of one controller. Layout assumed. */
public class QViSCSIInitiatorCTLInfo {
    /** Always 8 elements, one for each port. */
    public QViSCSIInitiatorPortInfo[] port;
}
