package tessaly.str.diskarray;

/** The remote arrays that this one knows. */
public class RemoteDeviceInformationEx {
    /**
     * 8 elements, used or not: <code>set_valid</code> tells. Handed over: at most 8 elements. Null
     * in a new object.
     */
    public RemoteDeviceInfo[] dev;
}
