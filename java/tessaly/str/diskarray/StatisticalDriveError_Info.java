package tessaly.str.diskarray;

/** Errors of a drive. No field is known. Layout assumed. */
public class StatisticalDriveError_Info {}
