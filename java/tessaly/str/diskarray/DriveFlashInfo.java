package tessaly.str.diskarray;

/** Flash settings of SATA drives. The values are the library's own. */
public class DriveFlashInfo {
    /** Mode of the comparison, the library's own value. */
    public int compare_mode;
    /** Flash time, in the library's own unit. */
    public int drv_flash_time;
    /** Flash I/O, the library's own count. */
    public int drv_flash_io_count;
}
