package tessaly.str.diskarray;

/** Cache partitions. Layout assumed. */
public class CachePartition {}
