package tessaly.str.diskarray;

/** The graph of a drive's operation. Layout assumed. */
public class PerformanceCollectGraphDriveOpr {}
