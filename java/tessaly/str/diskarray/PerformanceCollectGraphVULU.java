package tessaly.str.diskarray;

/** The graph of an LU of a virtual unit. No field is known. Layout assumed. */
public class PerformanceCollectGraphVULU {}
