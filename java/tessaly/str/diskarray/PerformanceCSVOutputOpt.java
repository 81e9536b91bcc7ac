package tessaly.str.diskarray;

/** An option of the output as CSV. Layout assumed. */
public class PerformanceCSVOutputOpt {}
