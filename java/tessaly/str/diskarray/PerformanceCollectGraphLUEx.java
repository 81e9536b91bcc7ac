package tessaly.str.diskarray;

/** The graph of an LU, further values. Layout assumed. */
public class PerformanceCollectGraphLUEx {}
