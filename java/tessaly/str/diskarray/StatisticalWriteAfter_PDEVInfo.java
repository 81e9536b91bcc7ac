package tessaly.str.diskarray;

/** The writing to a drive. */
public class StatisticalWriteAfter_PDEVInfo {}
