package tessaly.str.diskarray;

/** The identifier of a failover. Layout assumed. */
public class FailOverID {}
