package tessaly.str.diskarray;

/** The iSCSI paths to another array. Layout assumed. */
public class QViSCSIRemotePath {
    public int path_valid;
    /** At most 8 bytes. */
    public String other_serial_no = "";
    /** 2 elements. */
    public QViSCSIRemotePathSecret[] path;
}
