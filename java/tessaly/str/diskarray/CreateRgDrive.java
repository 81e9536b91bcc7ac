package tessaly.str.diskarray;

/** A drive chosen for a new RAID group. */
public class CreateRgDrive {
    /** Unit number. */
    public int unit_no;
    /** Drive number. */
    public int hdu_no;
}
