package tessaly.str.diskarray;

/** An iSCSI initiator that is logged in. */
public class QViSCSILoginInitiatorInfo {
    public int initiator_valid;
    /** At most 223 bytes. */
    public String iscsi_name;
}
