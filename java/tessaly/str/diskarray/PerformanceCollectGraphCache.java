package tessaly.str.diskarray;

/** The graph of the cache. */
public class PerformanceCollectGraphCache {}
