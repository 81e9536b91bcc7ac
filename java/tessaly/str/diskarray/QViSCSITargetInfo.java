package tessaly.str.diskarray;

/** An iSCSI target and how it authenticates. */
public class QViSCSITargetInfo {
    public int target_valid;
    /** At most 32 bytes. */
    public String target_name = "";
    /** At most 226 bytes. */
    public String iscsi_name = "";
    public int authmethod;
    public int algorithm;
    public int auth;
    /** At most 256 bytes. */
    public String user_name = "";
    /** At most 34 bytes. */
    public String secret = "";
}
