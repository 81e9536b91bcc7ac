package tessaly.str.diskarray;

/** An array, by its serial number. */
public class RemotePathSerial {
    /** Serial number of the other array, at most 16 bytes; not null. */
    public String remote_serial = "";
}
