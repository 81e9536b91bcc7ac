package tessaly.str.diskarray;

/** Power saving of a RAID group. */
public class SpinDownUpRGInfo {
    /** Number of the RAID group. */
    public int rgnum;
    /** State of its power saving, the library's own code. */
    public int rg_power_saving_status;
    /** Its power saving, the library's own value. */
    public int rg_power_saving;
    /** Number of spin-downs. */
    public int spin_down_count;
    /** Error of spinning down or up, the library's own code. */
    public int spin_error;
}
