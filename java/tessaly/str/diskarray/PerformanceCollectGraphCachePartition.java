package tessaly.str.diskarray;

/** The graph of a cache partition. Layout assumed. */
public class PerformanceCollectGraphCachePartition {}
