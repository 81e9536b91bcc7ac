package tessaly.str.diskarray;

/** The graph of an LU. Layout assumed. */
public class PerformanceCollectGraphLU {}
