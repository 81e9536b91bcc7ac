package tessaly.str.diskarray;

/** A graph, as a collection takes it. */
public class PerformanceCollectGraphInfo {
    /**
     * The differences. As an argument null reaches the library as it lay in memory. Null in a new
     * object.
     */
    public PerformanceCollectGraph graphinfo;
}
