package tessaly.str.diskarray;

/** Verification while the array runs. */
public class OnlineVerify {}
