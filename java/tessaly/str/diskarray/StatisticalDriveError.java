package tessaly.str.diskarray;

/** Errors of the drives, and their limits. Layout assumed. */
public class StatisticalDriveError {
    public StatisticalDriveError_LimitInfo limit;
    public StatisticalDriveError_Info[][] drive;
}
