package tessaly.str.diskarray;

/** An option of the output as CSV. No field is known. Layout assumed. */
public class PerformanceCSVOutputOpt {}
