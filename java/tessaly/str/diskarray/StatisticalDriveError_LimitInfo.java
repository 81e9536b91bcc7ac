package tessaly.str.diskarray;

/** The limits of errors. No field is known. Layout assumed. */
public class StatisticalDriveError_LimitInfo {}
