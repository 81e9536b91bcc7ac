package tessaly.str.diskarray;

/** All RAID groups with their drives. */
public class RaidGroupInformation {
    /** Number of RAID groups; the array is as long as ever. */
    public int rg_count;
    /** Always 200 elements. */
    public RgDetail[] rg;
    /** Always 60 rows of 30. */
    public RgDriveInfo[][] rgdrv;
}
