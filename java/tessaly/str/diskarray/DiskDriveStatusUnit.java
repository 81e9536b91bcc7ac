package tessaly.str.diskarray;

/** The state of the drives of an enclosure. */
public class DiskDriveStatusUnit {
    /** Number of drives mounted. */
    public int drive_mount_count;
    /** The slots, 30 elements, whatever the count says. */
    public DiskDrive[] drives;
}
