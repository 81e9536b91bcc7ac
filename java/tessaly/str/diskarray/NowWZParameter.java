package tessaly.str.diskarray;

/** Parameters of the LU wizard. No field is known. Layout assumed. */
public class NowWZParameter {}
