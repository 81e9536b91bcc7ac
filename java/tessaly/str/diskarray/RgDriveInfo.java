package tessaly.str.diskarray;

/** A drive slot, and the next drive of its RAID group. */
public class RgDriveInfo {
    /** Whether the drive belongs to a group. */
    public int valid_index;
    /** Enclosure of the next drive. */
    public int next_unit_no;
    /** Number of the next drive. */
    public int next_hdu_no;
    public int paritygroup_no;
}
