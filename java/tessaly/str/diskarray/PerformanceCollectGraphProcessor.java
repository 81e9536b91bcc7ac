package tessaly.str.diskarray;

/** The graph of the processor. No field is known. Layout assumed. */
public class PerformanceCollectGraphProcessor {}
