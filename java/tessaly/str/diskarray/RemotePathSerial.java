package tessaly.str.diskarray;

/** An array, by its serial number. */
public class RemotePathSerial {
    /** At most 16 bytes. */
    public String remote_serial = "";
}
