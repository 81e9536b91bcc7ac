package tessaly.str.diskarray;

/** The secret of a remote path. Layout assumed. No text may be null where it is handed over. */
public class QViSCSIRemotePathSecret {
    /** Secret, at most 32 bytes; whether a list shows it is the library's own. */
    public String secret = "";
}
