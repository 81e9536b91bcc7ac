package tessaly.str.diskarray;

/** Power saving of a logical unit. */
public class SpinDownUpLuInfo {
    /** Number of the logical unit. */
    public int lun;
    /** Its power saving, the library's own value. */
    public int lu_power_saving;
    /** Details of its power saving, the library's own value. */
    public int lu_power_saving_detail;
}
