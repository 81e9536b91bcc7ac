package tessaly.str.diskarray;

/** A middleware of hosts: 40 bytes of which no field is known. Layout assumed. */
public class MiddlewareInfo {}
