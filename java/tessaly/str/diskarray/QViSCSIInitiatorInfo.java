package tessaly.str.diskarray;

/** A registered iSCSI initiator. No text may be null where it is handed over. */
public class QViSCSIInitiatorInfo {
    /** Not 0 where the entry is in use. */
    public int initiator_valid;
    /** Control flag, the library's own value. */
    public int ctrl_flag;
    /** Name in the array, at most 32 bytes. */
    public String initiator_name = "";
    /** iSCSI name, at most 223 bytes. */
    public String iscsi_name = "";
    /**
     * 32 bytes, a bit for each target of the port that the initiator may use; the order of the bits
     * is the library's own. The native library copies into this array. Hand over at least as many.
     */
    public byte[] target_bitmap = new byte[32];
}
