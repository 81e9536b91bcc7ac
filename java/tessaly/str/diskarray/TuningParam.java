package tessaly.str.diskarray;

/** Tuning parameters. No field is known. Layout assumed. */
public class TuningParam {}
