package tessaly.str.diskarray;

/** The secret of a remote path. Layout assumed. */
public class QViSCSIRemotePathSecret {
    /** At most 32 bytes. */
    public String secret = "";
}
