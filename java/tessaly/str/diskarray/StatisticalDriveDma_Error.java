package tessaly.str.diskarray;

/** A kind of error of the transfers. */
public class StatisticalDriveDma_Error {}
