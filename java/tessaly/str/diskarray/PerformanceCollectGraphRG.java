package tessaly.str.diskarray;

/** The graph of a RAID group. No field is known. Layout assumed. */
public class PerformanceCollectGraphRG {}
