package tessaly.str.diskarray;

/** A graph. */
public class PerformanceCollectGraphInfo {
    public PerformanceCollectGraph graphinfo;
}
