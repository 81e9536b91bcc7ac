package tessaly.str.diskarray;

/** The graph of a drive's operation. */
public class PerformanceCollectGraphDriveOpr {}
