package tessaly.str.diskarray;

/** Tuning of prefetching. */
public class PrefetchTuning {}
