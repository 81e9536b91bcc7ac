package tessaly.str.diskarray;

/** The limits of errors. */
public class StatisticalDriveError_LimitInfo {}
