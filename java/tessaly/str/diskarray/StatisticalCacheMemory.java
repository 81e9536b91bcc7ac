package tessaly.str.diskarray;

/** Errors of the cache memory. Layout assumed. */
public class StatisticalCacheMemory {
    public int battery;
    public int threshold;
    public int[] correct_err;
    public int[] segment;
}
