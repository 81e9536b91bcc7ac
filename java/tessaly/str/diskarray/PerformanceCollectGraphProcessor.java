package tessaly.str.diskarray;

/** The graph of the processor. Layout assumed. */
public class PerformanceCollectGraphProcessor {}
