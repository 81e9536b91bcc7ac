package tessaly.str.diskarray;

/** A drive of a RAID group, and where the group's next drive is. */
public class RgDriveInfo {
    /** Whether the entry is in use. */
    public int valid_index;
    /** Unit number of the next drive. */
    public int next_unit_no;
    /** Number of the next drive. */
    public int next_hdu_no;
    public int paritygroup_no;
}
