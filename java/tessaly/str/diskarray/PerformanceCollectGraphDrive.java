package tessaly.str.diskarray;

/** The graph of a drive. No field is known. Layout assumed. */
public class PerformanceCollectGraphDrive {}
