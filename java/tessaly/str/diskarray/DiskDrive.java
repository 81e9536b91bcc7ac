package tessaly.str.diskarray;

/** The state of a drive. */
public class DiskDrive {
    /** Position of the drive: port; over the simulator its slot. */
    public int port_no;
    /** Position of the drive: row; over the simulator its enclosure. */
    public int row_no;
    /**
     * Whether a drive is mounted, the library's own value; over the simulator 0 where there is
     * none.
     */
    public int mount;
    /** Attribute, the library's own code. */
    public int attribute;
    /** Its state, the library's own code. */
    public int drv_state;
    /** Port of the drive that it stands in for. */
    public int spare_of_disk_port;
    /** Row of the drive that it stands in for. */
    public int spare_of_disk_row;
    /** Its alert state, the library's own code. */
    public int drv_alert_state;
}
