package tessaly.str.diskarray;

/** The graph of a port. No field is known. Layout assumed. */
public class PerformanceCollectGraphPort {}
