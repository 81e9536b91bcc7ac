package tessaly.str.diskarray;

/** What the drives of an enclosure are. */
public class DiskDriveUnitInfo {
    public int drive_mount_count;
    /** 30 elements, mounted or not. */
    public DiskDriveInformation[] drives;
}
