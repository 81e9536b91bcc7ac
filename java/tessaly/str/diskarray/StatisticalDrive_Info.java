package tessaly.str.diskarray;

/** Counters of a drive. Layout assumed. */
public class StatisticalDrive_Info {}
