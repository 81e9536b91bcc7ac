package tessaly.str.diskarray;

/** All RAID groups with their drives. */
public class RaidGroupInformation {
    /** Number of RAID groups; <code>rg</code> has its full length all the same. */
    public int rg_count;
    /** Always 200 elements; those in use have a <code>valid_index</code> other than 0. */
    public RgDetail[] rg;
    /**
     * Always 60 rows of 30: a row for each enclosure, an element for each of its slots. Those in
     * use have a <code>valid_index</code> other than 0.
     */
    public RgDriveInfo[][] rgdrv;
}
