package tessaly.str.diskarray;

/** System parameters. */
public class OnlineSystemParam {}
