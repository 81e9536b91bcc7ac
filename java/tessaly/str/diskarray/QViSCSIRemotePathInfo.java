package tessaly.str.diskarray;

/** The iSCSI paths to other arrays. */
public class QViSCSIRemotePathInfo {
    /** 8 elements, in use or not. */
    public QViSCSIRemotePath[] arrayunit;
}
