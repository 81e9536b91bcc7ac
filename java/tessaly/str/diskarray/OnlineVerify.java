package tessaly.str.diskarray;

/** Online verify. No field is known. Layout assumed. */
public class OnlineVerify {}
