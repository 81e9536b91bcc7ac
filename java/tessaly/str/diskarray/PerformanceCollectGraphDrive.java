package tessaly.str.diskarray;

/** The graph of a drive. Layout assumed. */
public class PerformanceCollectGraphDrive {}
