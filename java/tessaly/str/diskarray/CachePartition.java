package tessaly.str.diskarray;

/** Cache partitions. No field is known. Layout assumed. */
public class CachePartition {}
