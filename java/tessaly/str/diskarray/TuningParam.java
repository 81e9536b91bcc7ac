package tessaly.str.diskarray;

/** Tuning parameters. Layout assumed. */
public class TuningParam {}
