package tessaly.str.diskarray;

/** The graph of a drive. */
public class PerformanceCollectGraphDrive {}
