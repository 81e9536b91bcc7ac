package tessaly.str.diskarray;

import java.util.Arrays;

/** A RAID group to create, or to compute the capacity of. */
public class CreateRaidGroup {
    /** How the drives are chosen, the library's own value. */
    public int create_mode;
    /** RAID group number. */
    public int rgnum;
    /** RAID level, the library's own value. */
    public int level;
    /** Type of the drives, the library's own value. */
    public int drive_type;
    /** Capacity of a drive, in the library's own unit. */
    public int drive_capa;
    /** Number of drives in a parity group. */
    public int parity_hdu_count;
    /** Number of parity groups. */
    public int parity_count;
    /**
     * The chosen drives, at most 1,800; more are left out. Fewer will do, an empty array as well:
     * the slots behind reach the library as they lay in memory. Not null.
     */
    public CreateRgDrive[] rgdrv = new CreateRgDrive[1800];

    {
        Arrays.setAll(rgdrv, index -> new CreateRgDrive());
    }
}
