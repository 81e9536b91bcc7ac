package tessaly.str.diskarray;

/** The graph of an LU, further values. */
public class PerformanceCollectGraphLUEx {}
