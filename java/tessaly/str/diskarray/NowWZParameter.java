package tessaly.str.diskarray;

/** Online options. */
public class NowWZParameter {}
