package tessaly.str.diskarray;

/** The iSCSI targets of one port. */
public class QViSCSITargetPortInfo {
    public int port_valid;
    public int security;
    public int target_max_count;
    public int target_count;
    /** 255 elements, in use or not. */
    public QViSCSITargetInfo[] target;
}
