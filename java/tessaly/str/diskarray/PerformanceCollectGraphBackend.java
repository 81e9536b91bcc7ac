package tessaly.str.diskarray;

/** The graph of a path to the drives. Layout assumed. */
public class PerformanceCollectGraphBackend {}
