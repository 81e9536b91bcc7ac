package tessaly.str.diskarray;

/** System parameters. Layout assumed. */
public class OnlineSystemParam {}
