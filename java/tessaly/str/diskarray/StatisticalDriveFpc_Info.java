package tessaly.str.diskarray;

/** Errors of a port to the drives. */
public class StatisticalDriveFpc_Info {}
