package tessaly.str.diskarray;

/** Tuning of prefetching. Layout assumed. */
public class PrefetchTuning {}
