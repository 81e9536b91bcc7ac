package tessaly.str.diskarray;

/** Prefetching. */
public class PrefetchInformation {}
