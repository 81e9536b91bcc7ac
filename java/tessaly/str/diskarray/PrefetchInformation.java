package tessaly.str.diskarray;

/** Prefetching. No field is known. Layout assumed. */
public class PrefetchInformation {}
