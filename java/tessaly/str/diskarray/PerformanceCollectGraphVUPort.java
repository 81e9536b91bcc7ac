package tessaly.str.diskarray;

/** The graph of a path to a virtual unit. Layout assumed. */
public class PerformanceCollectGraphVUPort {}
