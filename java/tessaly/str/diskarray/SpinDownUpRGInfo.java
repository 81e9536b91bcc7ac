package tessaly.str.diskarray;

/** Power saving of a RAID group. */
public class SpinDownUpRGInfo {
    public int rgnum;
    public int rg_power_saving_status;
    public int rg_power_saving;
    public int spin_down_count;
    public int spin_error;
}
