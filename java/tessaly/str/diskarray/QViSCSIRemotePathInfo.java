package tessaly.str.diskarray;

/** The iSCSI paths to other arrays. */
public class QViSCSIRemotePathInfo {
    /** Always 8 elements; those in use have a <code>path_valid</code> other than 0. */
    public QViSCSIRemotePath[] arrayunit;
}
