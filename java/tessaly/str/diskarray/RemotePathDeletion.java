package tessaly.str.diskarray;

import java.util.Arrays;

/** The arrays to which the remote paths are to be deleted. */
public class RemotePathDeletion {
    /** How many elements of <code>serial</code> are meant; not compared with its length. */
    public int delete_count;
    /**
     * At most 8 elements, of which <code>delete_count</code> are meant; not null, and no element
     * null.
     */
    public RemotePathSerial[] serial = new RemotePathSerial[8];

    {
        Arrays.setAll(serial, index -> new RemotePathSerial());
    }
}
