package tessaly.str.diskarray;

/** An iSCSI initiator that is logged in. */
public class QViSCSILoginInitiatorInfo {
    /** Not 0 where the entry is in use. */
    public int initiator_valid;
    /** iSCSI name, at most 223 bytes. */
    public String iscsi_name;
}
