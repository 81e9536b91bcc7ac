package tessaly.str.diskarray;

/**
 * Usage of a cache partition, in the library's own unit. A size is there in 32 bits, and again in
 * two words.
 */
public class CachePartitionAll_Info {
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** Not 0 where the partition is in use. */
    public int partition_valid;
    /** Its size. */
    public int partition_cache_size;
    /** Used of it. */
    public int used_cache_size;
    /** Used of it, clean. */
    public int used_cache_clean;
    /** Used of it, of the kind "middle". */
    public int used_cache_middle;
    /** Used of it, of the kind "physical". */
    public int used_cache_physical;
    /** Used of it, high word. */
    public int used_cache_size_h;
    /** Used of it, low word. */
    public int used_cache_size_l;
    /** Used of it, clean, high word. */
    public int used_cache_clean_h;
    /** Used of it, clean, low word. */
    public int used_cache_clean_l;
    /** Used of it, of the kind "middle", high word. */
    public int used_cache_middle_h;
    /** Used of it, of the kind "middle", low word. */
    public int used_cache_middle_l;
    /** Used of it, of the kind "physical", high word. */
    public int used_cache_physical_h;
    /** Used of it, of the kind "physical", low word. */
    public int used_cache_physical_l;
}
