package tessaly.str.diskarray;

/** Errors of a host port. No field is known. Layout assumed. */
public class StatisticalHostSpc_Info {}
