package tessaly.str.diskarray;

/** The hosts known at a port. */
public class WWNPortInfo {}
