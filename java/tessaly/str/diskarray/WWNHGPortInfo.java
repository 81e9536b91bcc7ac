package tessaly.str.diskarray;

/** The hosts of a port's host groups. Layout assumed. */
public class WWNHGPortInfo {}
