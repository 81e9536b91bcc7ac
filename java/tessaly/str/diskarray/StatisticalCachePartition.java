package tessaly.str.diskarray;

/** Counters of a cache partition. */
public class StatisticalCachePartition {}
