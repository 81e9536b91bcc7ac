package tessaly.str.diskarray;

/** The arrays at the other ends of remote pairs. */
public class RemoteDeviceInformationEx {
    /** At most 8; those behind are left out. */
    public RemoteDeviceInfo[] dev;
}
