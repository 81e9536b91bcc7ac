package tessaly.str.diskarray;

/** A drive of a RAID group, and where the group's next drive is. */
public class RgDriveInfo {
    /** Not 0 where the entry is in use. */
    public int valid_index;
    /** Enclosure of the next drive; what it is behind the last one is the library's own. */
    public int next_unit_no;
    /** Slot of the next drive; what it is behind the last one is the library's own. */
    public int next_hdu_no;
    /** Number of the parity group that the drive belongs to. */
    public int paritygroup_no;
}
