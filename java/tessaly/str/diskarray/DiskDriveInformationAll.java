package tessaly.str.diskarray;

/** What the drives of an array are, by enclosure. */
public class DiskDriveInformationAll {
    /** 60 elements. */
    public DiskDriveUnitInfo[] unit;
}
