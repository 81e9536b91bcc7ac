package tessaly.str.diskarray;

/** The graph of a RAID group. */
public class PerformanceCollectGraphRG {}
