package tessaly.str.diskarray;

/** The writing to a drive. No field is known. Layout assumed. */
public class StatisticalWriteAfter_PDEVInfo {}
