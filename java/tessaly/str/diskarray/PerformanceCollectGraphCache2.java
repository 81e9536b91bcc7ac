package tessaly.str.diskarray;

/** The graph of the cache, further values. */
public class PerformanceCollectGraphCache2 {}
