package tessaly.str.diskarray;

/** The graph of the processor. */
public class PerformanceCollectGraphProcessor {}
