package tessaly.str.diskarray;

/** The remote array that this one knows. */
public class RemoteDeviceInformation {
    /** Whether an array is given, the library's own value. */
    public int valid;
    /** Equipment identifier of the array, at most 4 bytes; not null. */
    public String equipment_id = "";
    /** Serial number of the array, at most 8 bytes; not null. */
    public String serial = "";
}
