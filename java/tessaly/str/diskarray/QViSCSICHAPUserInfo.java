package tessaly.str.diskarray;

/** A CHAP user. No text may be null where it is handed over. */
public class QViSCSICHAPUserInfo {
    /** Not 0 where the entry is in use. */
    public int user_valid;
    /** Control flag, the library's own value. */
    public int ctrl_flag;
    /** User name, at most 256 bytes. */
    public String user_name = "";
    /** Secret, at most 32 bytes; whether a list shows it is the library's own. */
    public String secret = "";
    /**
     * 32 bytes, a bit for each target of the port that the user may use; the order of the bits is
     * the library's own. The native library copies into this array. Hand over at least as many.
     */
    public byte[] target_bitmap = new byte[32];
}
