package tessaly.str.diskarray;

/** An option of the output as CSV. */
public class PerformanceCSVOutputOpt {}
