package tessaly.str.diskarray;

/** The iSCSI initiators that are logged in to one port. */
public class QViSCSILoginInitiatorPortInfo {
    public int port_valid;
    public int initiator_max_count;
    public int initiator_count;
    /** 256 elements, in use or not. */
    public QViSCSILoginInitiatorInfo[] initiator;
}
