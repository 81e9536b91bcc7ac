package tessaly.str.diskarray;

/** The graph of an LU of a virtual unit. Layout assumed. */
public class PerformanceCollectGraphVULU {}
