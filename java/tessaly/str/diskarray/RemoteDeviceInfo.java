package tessaly.str.diskarray;

/** An array at the other end of remote pairs. */
public class RemoteDeviceInfo {
    public int set_valid;
    /** At most 8 bytes. */
    public String serial = "";
}
