package tessaly.str.diskarray;

/** The arrays to which the remote paths are to be deleted. */
public class RemotePathDeletion {
    public int delete_count;
    /** At most 8; those behind are left out. */
    public RemotePathSerial[] serial;
}
