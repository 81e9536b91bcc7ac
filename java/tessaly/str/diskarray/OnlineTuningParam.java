package tessaly.str.diskarray;

/** Online tuning parameters. No field is known. Layout assumed. */
public class OnlineTuningParam {}
