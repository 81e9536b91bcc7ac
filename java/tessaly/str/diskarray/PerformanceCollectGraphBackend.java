package tessaly.str.diskarray;

/** The graph of a path to the drives. */
public class PerformanceCollectGraphBackend {}
