package tessaly.str.diskarray;

/** Errors of a host port. */
public class StatisticalHostSpc_Info {}
