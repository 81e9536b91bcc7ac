package tessaly.str.diskarray;

/** Power saving of a logical unit. */
public class SpinDownUpLuInfo {
    public int lun;
    public int lu_power_saving;
    public int lu_power_saving_detail;
}
