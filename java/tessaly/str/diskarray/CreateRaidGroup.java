package tessaly.str.diskarray;

import java.util.Arrays;

/** A RAID group to create, or to compute the capacity of. */
public class CreateRaidGroup {
    /** How the drives are chosen. */
    public int create_mode;
    /** RAID group number. */
    public int rgnum;
    /** RAID level. */
    public int level;
    public int drive_type;
    /** Drive capacity. */
    public int drive_capa;
    /** Drives in a parity group. */
    public int parity_hdu_count;
    /** Number of parity groups. */
    public int parity_count;
    /** The chosen drives, at most 1,800; more are left out. Never null. */
    public CreateRgDrive[] rgdrv = new CreateRgDrive[1800];

    {
        Arrays.setAll(rgdrv, index -> new CreateRgDrive());
    }
}
