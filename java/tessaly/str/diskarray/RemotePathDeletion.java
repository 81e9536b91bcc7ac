package tessaly.str.diskarray;

import java.util.Arrays;

/** The arrays to which the remote paths are to be deleted. */
public class RemotePathDeletion {
    /** How many elements of <code>serial</code> are meant; not compared with its length. */
    public int delete_count;
    /**
     * At most 8 elements; not null. One that is meant but null or missing reaches the library as it
     * lay in memory; those behind 8 are left out.
     */
    public RemotePathSerial[] serial = new RemotePathSerial[8];

    {
        Arrays.setAll(serial, index -> new RemotePathSerial());
    }
}
