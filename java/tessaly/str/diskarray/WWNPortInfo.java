package tessaly.str.diskarray;

/** The hosts known at a port: 18,566 bytes of which no field is known. Layout assumed. */
public class WWNPortInfo {}
