package tessaly.str.diskarray;

/** Counters of the drives. Layout assumed. */
public class StatisticalDrive {
    public int err_rtry;
    public StatisticalDrive_Info[][] drive;
}
