package tessaly.str.diskarray;

/** A registered iSCSI initiator. */
public class QViSCSIInitiatorInfo {
    public int initiator_valid;
    public int ctrl_flag;
    /** At most 32 bytes. */
    public String initiator_name = "";
    /** At most 223 bytes. */
    public String iscsi_name = "";
    /** One bit for each target of the port. The native library copies into this array. */
    public byte[] target_bitmap = new byte[32];
}
