package tessaly.str.diskarray;

/** Errors of the drive interface. */
public class StatisticalDriveSpc {
    /** Repetitions. */
    public int retry;
    /** Threshold of errors. */
    public int err_threshold;
    /** Errors, 6 elements. */
    public int[] err_count;
}
