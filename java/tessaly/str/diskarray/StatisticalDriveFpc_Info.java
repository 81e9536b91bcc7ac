package tessaly.str.diskarray;

/** Errors of a port to the drives. No field is known. Layout assumed. */
public class StatisticalDriveFpc_Info {}
