package tessaly.str.diskarray;

/** The graph of a cache partition. No field is known. Layout assumed. */
public class PerformanceCollectGraphCachePartition {}
