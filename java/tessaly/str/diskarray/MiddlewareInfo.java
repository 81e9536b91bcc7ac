package tessaly.str.diskarray;

/** A middleware of hosts. */
public class MiddlewareInfo {}
