package tessaly.str.diskarray;

/** The writing to a drive. Layout assumed. */
public class StatisticalWriteAfter_PDEVInfo {}
