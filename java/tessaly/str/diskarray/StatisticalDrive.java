package tessaly.str.diskarray;

/** Counters of the drives. Layout assumed. */
public class StatisticalDrive {
    /** Repetitions after errors. */
    public int err_rtry;
    /** The drives, 15 rows of 30. */
    public StatisticalDrive_Info[][] drive;
}
