package tessaly.str.diskarray;

/** The hosts of a port's host groups. */
public class WWNHGPortInfo {}
