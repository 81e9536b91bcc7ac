package tessaly.str.diskarray;

/** A kind of error of the transfers. Layout assumed. */
public class StatisticalDriveDma_Error {}
