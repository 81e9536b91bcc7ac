package tessaly.str.diskarray;

/** A CHAP user. */
public class QViSCSICHAPUserInfo {
    public int user_valid;
    public int ctrl_flag;
    /** At most 256 bytes. */
    public String user_name = "";
    /** At most 32 bytes. */
    public String secret = "";
    /** One bit for each target of the port. The native library copies into this array. */
    public byte[] target_bitmap = new byte[32];
}
