package tessaly.str.diskarray;

/** The remote arrays that this one knows. */
public class RemoteDeviceInformationEx {
    /**
     * 8 elements, used or not: <code>set_valid</code> tells. To hand over: not null; an element
     * that is null or missing reaches the library as it lay in memory, and those behind 8 are left
     * out.
     */
    public RemoteDeviceInfo[] dev;
}
