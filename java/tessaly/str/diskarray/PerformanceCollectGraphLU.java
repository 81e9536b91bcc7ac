package tessaly.str.diskarray;

/** The graph of an LU. No field is known. Layout assumed. */
public class PerformanceCollectGraphLU {}
