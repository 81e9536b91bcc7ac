package tessaly.str.diskarray;

/** The graph of a path to the drives. No field is known. Layout assumed. */
public class PerformanceCollectGraphBackend {}
