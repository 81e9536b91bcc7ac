package tessaly.str.diskarray;

/** A drive chosen for a new RAID group. */
public class CreateRgDrive {
    /** Enclosure. */
    public int unit_no;
    /** Slot in the enclosure. */
    public int hdu_no;
}
