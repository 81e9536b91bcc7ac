package tessaly.str.diskarray;

/** Errors of the cache memory. Layout assumed. */
public class StatisticalCacheMemory {
    /** The library's own counter of the battery. */
    public int battery;
    /** The library's own threshold. */
    public int threshold;
    /** Corrected errors, 12 elements. */
    public int[] correct_err;
    /** Counters of segments, 64 elements. */
    public int[] segment;
}
