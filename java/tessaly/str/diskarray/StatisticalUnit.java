package tessaly.str.diskarray;

/** Errors of the units. */
public class StatisticalUnit {
    /** Errors of the battery. */
    public int battery;
    /** Counter of the kind "upst". */
    public int upst;
    /** Errors of the backup power. */
    public int backup_power;
}
