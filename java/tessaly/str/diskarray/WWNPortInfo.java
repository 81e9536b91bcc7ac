package tessaly.str.diskarray;

/** The hosts known at a port. Layout assumed. */
public class WWNPortInfo {}
