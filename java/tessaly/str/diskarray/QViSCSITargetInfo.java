package tessaly.str.diskarray;

/** An iSCSI target and how it authenticates. No text may be null where it is handed over. */
public class QViSCSITargetInfo {
    /** Not 0 where the entry is in use. */
    public int target_valid;
    /** Name in the array, at most 32 bytes. */
    public String target_name = "";
    /** iSCSI name, at most 226 bytes. */
    public String iscsi_name = "";
    /** Authentication method, the library's own value. */
    public int authmethod;
    /** Authentication algorithm, the library's own value. */
    public int algorithm;
    /** Authentication, the library's own value. */
    public int auth;
    /** User name of the authentication, at most 256 bytes. */
    public String user_name = "";
    /** Secret of that user, at most 34 bytes; whether a list shows it is the library's own. */
    public String secret = "";
}
