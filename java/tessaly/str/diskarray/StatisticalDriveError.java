package tessaly.str.diskarray;

/** Errors of the drives, and their limits. Layout assumed. */
public class StatisticalDriveError {
    /** The limits. */
    public StatisticalDriveError_LimitInfo limit;
    /** The drives, 15 rows of 30. */
    public StatisticalDriveError_Info[][] drive;
}
