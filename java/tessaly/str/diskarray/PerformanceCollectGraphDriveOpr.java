package tessaly.str.diskarray;

/** The graph of a drive's operation. No field is known. Layout assumed. */
public class PerformanceCollectGraphDriveOpr {}
