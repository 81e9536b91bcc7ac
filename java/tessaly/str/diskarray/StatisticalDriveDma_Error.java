package tessaly.str.diskarray;

/** A kind of error of the transfers. No field is known. Layout assumed. */
public class StatisticalDriveDma_Error {}
