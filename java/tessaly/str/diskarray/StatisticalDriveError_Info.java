package tessaly.str.diskarray;

/** Errors of a drive. */
public class StatisticalDriveError_Info {}
