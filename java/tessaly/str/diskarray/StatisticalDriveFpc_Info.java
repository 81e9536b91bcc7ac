package tessaly.str.diskarray;

/** Errors of a port to the drives. Layout assumed. */
public class StatisticalDriveFpc_Info {}
