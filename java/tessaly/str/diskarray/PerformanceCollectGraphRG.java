package tessaly.str.diskarray;

/** The graph of a RAID group. Layout assumed. */
public class PerformanceCollectGraphRG {}
