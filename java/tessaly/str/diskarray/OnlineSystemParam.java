package tessaly.str.diskarray;

/** System parameters. No field is known. Layout assumed. */
public class OnlineSystemParam {}
