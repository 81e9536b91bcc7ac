package tessaly.str.diskarray;

/** The graph of an LU. */
public class PerformanceCollectGraphLU {}
