package tessaly.str.diskarray;

/** The graph of the cache. No field is known. Layout assumed. */
public class PerformanceCollectGraphCache {}
