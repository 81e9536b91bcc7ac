package tessaly.str.diskarray;

/** Counters of a cache partition. Layout assumed. */
public class StatisticalCachePartition {}
