package tessaly.str.diskarray;

/** Prefetching. Layout assumed. */
public class PrefetchInformation {}
