package tessaly.str.diskarray;

/** The limits of errors. Layout assumed. */
public class StatisticalDriveError_LimitInfo {}
