package tessaly.str.diskarray;

/** Counters of the cache. Layout assumed. */
public class StatisticalCache {
    /** The library's own counter of writing. */
    public int wrt_inhcnt;
    /** The library's own counter of writing. */
    public int wrt_outhcnt;
    /** The library's own counter of sequential writing. */
    public int seqwr_bufcnt;
    /** The library's own counter of locked segments. */
    public int seg_lock_cnt;
    /** The partitions, 64 elements. */
    public StatisticalCachePartition[] cachepartition;
}
