package tessaly.str.diskarray;

/** Counters of a drive. No field is known. Layout assumed. */
public class StatisticalDrive_Info {}
