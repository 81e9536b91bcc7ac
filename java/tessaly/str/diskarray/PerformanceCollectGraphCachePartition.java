package tessaly.str.diskarray;

/** The graph of a cache partition. */
public class PerformanceCollectGraphCachePartition {}
