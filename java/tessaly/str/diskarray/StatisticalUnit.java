package tessaly.str.diskarray;

/** Counters of the units. */
public class StatisticalUnit {
    /** Counter of the battery. */
    public int battery;
    /** Counter of the kind "upst". */
    public int upst;
    /** Counter of the backup power. */
    public int backup_power;
}
