package tessaly.str.diskarray;

/** Errors of the cache memory. */
public class StatisticalCacheMemory {
    public int battery;
    public int threshold;
    public int[] correct_err;
    public int[] segment;
}
