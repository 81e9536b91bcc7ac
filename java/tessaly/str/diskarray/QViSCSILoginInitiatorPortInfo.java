package tessaly.str.diskarray;

/** The iSCSI initiators that are logged in to one port. */
public class QViSCSILoginInitiatorPortInfo {
    /** Not 0 where the port is there. */
    public int port_valid;
    /** Number of initiators that can be logged in. */
    public int initiator_max_count;
    /** Number of initiators; <code>initiator</code> has its full length all the same. */
    public int initiator_count;
    /** Always 256 elements; those in use have an <code>initiator_valid</code> other than 0. */
    public QViSCSILoginInitiatorInfo[] initiator;
}
