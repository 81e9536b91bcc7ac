package tessaly.str.diskarray;

/** The state of the drives of an enclosure. */
public class DiskDriveStatusUnit {
    public int drive_mount_count;
    /** 30 elements, mounted or not. */
    public DiskDrive[] drives;
}
