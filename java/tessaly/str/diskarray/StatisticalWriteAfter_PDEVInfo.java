package tessaly.str.diskarray;

/** Write-after of a drive. No field is known. Layout assumed. */
public class StatisticalWriteAfter_PDEVInfo {}
