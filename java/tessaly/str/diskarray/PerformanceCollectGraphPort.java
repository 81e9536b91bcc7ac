package tessaly.str.diskarray;

/** The graph of a port. */
public class PerformanceCollectGraphPort {}
