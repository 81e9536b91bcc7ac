package tessaly.str.diskarray;

/** Online options. No field is known. Layout assumed. */
public class NowWZParameter {}
