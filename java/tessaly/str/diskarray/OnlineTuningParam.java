package tessaly.str.diskarray;

/** Tuning parameters while the array runs. Layout assumed. */
public class OnlineTuningParam {}
