package tessaly.str.diskarray;

/** Tuning parameters while the array runs. */
public class OnlineTuningParam {}
