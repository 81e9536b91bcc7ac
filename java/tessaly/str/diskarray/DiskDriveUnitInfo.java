package tessaly.str.diskarray;

/** What the drives of an enclosure are. */
public class DiskDriveUnitInfo {
    /** Number of drives mounted. */
    public int drive_mount_count;
    /** The slots, 30 elements, whatever the count says. */
    public DiskDriveInformation[] drives;
}
