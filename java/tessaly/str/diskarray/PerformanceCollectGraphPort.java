package tessaly.str.diskarray;

/** The graph of a port. Layout assumed. */
public class PerformanceCollectGraphPort {}
