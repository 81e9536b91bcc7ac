package tessaly.str.diskarray;

/** The graph of the cache, further values. No field is known. Layout assumed. */
public class PerformanceCollectGraphCache2 {}
