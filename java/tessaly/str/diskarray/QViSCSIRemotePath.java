package tessaly.str.diskarray;

/** The iSCSI paths to another array. */
public class QViSCSIRemotePath {
    public int path_valid;
    /** At most 8 bytes. */
    public String other_serial_no = "";
    /** 2 elements. */
    public QViSCSIRemotePathSecret[] path;
}
