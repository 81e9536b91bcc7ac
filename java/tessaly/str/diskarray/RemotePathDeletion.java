package tessaly.str.diskarray;

import java.util.Arrays;

/** The arrays to which the remote paths are to be deleted. */
public class RemotePathDeletion {
    public int delete_count;
    /** At most 8; those behind are left out. */
    public RemotePathSerial[] serial = new RemotePathSerial[8];

    {
        Arrays.setAll(serial, index -> new RemotePathSerial());
    }
}
