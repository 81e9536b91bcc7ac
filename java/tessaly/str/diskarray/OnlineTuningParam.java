package tessaly.str.diskarray;

/** Tuning parameters while the array runs. No field is known. Layout assumed. */
public class OnlineTuningParam {}
