package tessaly.str.diskarray;

/** Cache partitions. */
public class CachePartition {}
