package tessaly.str.diskarray;

/** The iSCSI targets of one port. */
public class QViSCSITargetPortInfo {
    /** Not 0 where the port is there. */
    public int port_valid;
    /** Security of the targets, the library's own value. */
    public int security;
    /** Number of targets that the port can have. */
    public int target_max_count;
    /** Number of targets; <code>target</code> has its full length all the same. */
    public int target_count;
    /**
     * Always 255 elements, the target of each number; those in use have a <code>target_valid</code>
     * other than 0.
     */
    public QViSCSITargetInfo[] target;
}
