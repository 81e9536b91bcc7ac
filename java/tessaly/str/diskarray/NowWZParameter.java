package tessaly.str.diskarray;

/** Online options. Layout assumed. */
public class NowWZParameter {}
