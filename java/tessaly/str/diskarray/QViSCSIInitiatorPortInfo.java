package tessaly.str.diskarray;

/** The registered iSCSI initiators of one port. */
public class QViSCSIInitiatorPortInfo {
    /** Not 0 where the port is there. */
    public int port_valid;
    /** Security of the targets, the library's own value. */
    public int security;
    /** Number of initiators that the port can have. */
    public int initiator_max_count;
    /** Number of initiators; <code>initiator</code> has its full length all the same. */
    public int initiator_count;
    /**
     * Always 256 elements; those in use have an <code>initiator_valid</code> other than 0. Hand
     * over as many, none of them null. Null in a new object.
     */
    public QViSCSIInitiatorInfo[] initiator;
}
