package tessaly.str.diskarray;

/** Tuning of prefetching. No field is known. Layout assumed. */
public class PrefetchTuning {}
