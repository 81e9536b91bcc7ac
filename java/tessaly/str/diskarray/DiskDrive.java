package tessaly.str.diskarray;

/** The state of a drive. */
public class DiskDrive {
    public int port_no;
    public int row_no;
    public int mount;
    public int attribute;
    public int drv_state;
    public int spare_of_disk_port;
    public int spare_of_disk_row;
    public int drv_alert_state;
}
