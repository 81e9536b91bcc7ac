package tessaly.str.diskarray;

/** The hosts of a port's host groups: 9,736 bytes of which no field is known. Layout assumed. */
public class WWNHGPortInfo {}
