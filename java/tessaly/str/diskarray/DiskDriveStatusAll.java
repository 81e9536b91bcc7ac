package tessaly.str.diskarray;

/** The state of the drives of an array, by enclosure. */
public class DiskDriveStatusAll {
    /** The enclosures, 60 elements, mounted or not. */
    public DiskDriveStatusUnit[] unit;
}
