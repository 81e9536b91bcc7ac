package tessaly.str.diskarray;

/**
 * The iSCSI paths to another array. Layout assumed. No text may be null where it is handed over.
 */
public class QViSCSIRemotePath {
    /** Not 0 where the entry is in use. */
    public int path_valid;
    /** Serial number of the other array, at most 8 bytes. */
    public String other_serial_no = "";
    /**
     * Always 2 elements, one for each path. Hand over as many, none of them null. Null in a new
     * object.
     */
    public QViSCSIRemotePathSecret[] path;
}
