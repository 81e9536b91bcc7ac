package tessaly.str.diskarray;

/** The registered iSCSI initiators of one port. */
public class QViSCSIInitiatorPortInfo {
    public int port_valid;
    public int security;
    public int initiator_max_count;
    public int initiator_count;
    /** 256 elements, in use or not. */
    public QViSCSIInitiatorInfo[] initiator;
}
