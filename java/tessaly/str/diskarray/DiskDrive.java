package tessaly.str.diskarray;

/** The state of a drive. */
public class DiskDrive {
    /** Number of its slot in the enclosure. */
    public int port_no;
    /** Number of its enclosure. */
    public int row_no;
    /** Marks a slot in use: 0 where there is no drive. */
    public int mount;
    /** Attribute, the library's own code. */
    public int attribute;
    /** Its state, the library's own code. */
    public int drv_state;
    /** Slot of the drive that it stands in for. */
    public int spare_of_disk_port;
    /** Enclosure of the drive that it stands in for. */
    public int spare_of_disk_row;
    /** Its alert state, the library's own code. */
    public int drv_alert_state;
}
