package tessaly.str.diskarray;

/** Usage of a cache partition. */
public class CachePartitionAll_Info {
    public int valid;
    public int support;
    public int partition_valid;
    public int partition_cache_size;
    public int used_cache_size;
    public int used_cache_clean;
    public int used_cache_middle;
    public int used_cache_physical;
    public int used_cache_size_h;
    public int used_cache_size_l;
    public int used_cache_clean_h;
    public int used_cache_clean_l;
    public int used_cache_middle_h;
    public int used_cache_middle_l;
    public int used_cache_physical_h;
    public int used_cache_physical_l;
}
