package tessaly.str.diskarray;

/** The state of the drives of an array, by enclosure. */
public class DiskDriveStatusAll {
    /** 60 elements. */
    public DiskDriveStatusUnit[] unit;
}
