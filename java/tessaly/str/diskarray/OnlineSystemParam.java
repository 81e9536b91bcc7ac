package tessaly.str.diskarray;

/** Online system parameters. No field is known. Layout assumed. */
public class OnlineSystemParam {}
