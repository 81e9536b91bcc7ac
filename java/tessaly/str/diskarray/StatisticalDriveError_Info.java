package tessaly.str.diskarray;

/** Errors of a drive. Layout assumed. */
public class StatisticalDriveError_Info {}
