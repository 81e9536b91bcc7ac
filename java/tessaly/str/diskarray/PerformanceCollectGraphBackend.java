package tessaly.str.diskarray;

/** The graph of a back-end path. No field is known. Layout assumed. */
public class PerformanceCollectGraphBackend {}
