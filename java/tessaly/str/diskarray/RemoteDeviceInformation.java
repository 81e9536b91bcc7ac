package tessaly.str.diskarray;

/** The array at the other end of remote pairs. */
public class RemoteDeviceInformation {
    public int valid;
    /** At most 4 bytes. */
    public String equipment_id = "";
    /** At most 8 bytes. */
    public String serial = "";
}
