package tessaly.str.diskarray;

/** Tuning parameters. */
public class TuningParam {}
