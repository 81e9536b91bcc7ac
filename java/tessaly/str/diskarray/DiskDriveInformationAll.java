package tessaly.str.diskarray;

/** What the drives of an array are, by enclosure. */
public class DiskDriveInformationAll {
    /** The enclosures, 60 elements, mounted or not. */
    public DiskDriveUnitInfo[] unit;
}
