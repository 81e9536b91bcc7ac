package tessaly.str.diskarray;

/** A remote path to set up anew. */
public class RemotePathRebuild {
    /** At most 16 bytes. */
    public String remote_serial = "";
    public int path;
}
