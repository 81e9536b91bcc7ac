package tessaly.str.diskarray;

/** An array at the other end of remote pairs. */
public class RemoteDeviceInfo {
    /** Whether the entry is set, the library's own value. */
    public int set_valid;
    /** Serial number of the array, at most 8 bytes; not null. */
    public String serial = "";
}
