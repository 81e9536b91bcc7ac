package tessaly.str.diskarray;

/** The graph of the cache, further values. Layout assumed. */
public class PerformanceCollectGraphCache2 {}
