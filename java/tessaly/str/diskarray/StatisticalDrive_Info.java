package tessaly.str.diskarray;

/** Counters of a drive. */
public class StatisticalDrive_Info {}
