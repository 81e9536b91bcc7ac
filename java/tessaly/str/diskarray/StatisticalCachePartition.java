package tessaly.str.diskarray;

/** Counters of a cache partition. No field is known. Layout assumed. */
public class StatisticalCachePartition {}
