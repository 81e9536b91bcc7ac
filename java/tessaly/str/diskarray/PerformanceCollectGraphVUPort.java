package tessaly.str.diskarray;

/** The graph of a path to a virtual unit. No field is known. Layout assumed. */
public class PerformanceCollectGraphVUPort {}
