package tessaly.str.diskarray;

/** Verification while the array runs. Layout assumed. */
public class OnlineVerify {}
