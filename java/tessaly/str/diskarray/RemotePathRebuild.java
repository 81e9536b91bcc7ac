package tessaly.str.diskarray;

/** A remote path to rebuild. */
public class RemotePathRebuild {
    /** Serial number of the other array, at most 16 bytes; not null. */
    public String remote_serial = "";
    /** Which path, the library's own value. */
    public int path;
}
