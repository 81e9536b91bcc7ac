package tessaly.str.diskarray;

/** A remote array that this one knows. */
public class RemoteDeviceInfo {
    /** Whether the entry is set, the library's own value. */
    public int set_valid;
    /** Serial number of the array, at most 8 bytes; not null. */
    public String serial = "";
}
