package tessaly.str.diskarray;

/** Errors of the drive interface. */
public class StatisticalDriveSpc {
    public int retry;
    public int err_threshold;
    public int[] err_count;
}
