package tessaly.str.diskarray;

/** A middleware of hosts. Layout assumed. */
public class MiddlewareInfo {}
