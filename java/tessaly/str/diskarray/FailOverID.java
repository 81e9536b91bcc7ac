package tessaly.str.diskarray;

/** The identifier of a failover. */
public class FailOverID {}
