package tessaly.str.diskarray;

/** A drive chosen for a new RAID group. */
public class CreateRgDrive {
    /** Enclosure. */
    public int unit_no;
    /** Number of the drive. */
    public int hdu_no;
}
