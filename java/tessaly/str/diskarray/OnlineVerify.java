package tessaly.str.diskarray;

/** Verification while the array runs. No field is known. Layout assumed. */
public class OnlineVerify {}
