package tessaly.str.diskarray;

/** Errors of a host port. Layout assumed. */
public class StatisticalHostSpc_Info {}
