package tessaly.str.diskarray;

/** The graph of the cache. Layout assumed. */
public class PerformanceCollectGraphCache {}
