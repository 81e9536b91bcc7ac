package tessaly.str.diskarray;

/** The graph of an LU, further values. No field is known. Layout assumed. */
public class PerformanceCollectGraphLUEx {}
