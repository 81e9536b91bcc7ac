package tessaly.str.diskarray;

/** All counters of one controller at one time; tables hold every slot, occupied or not. */
public class PerformanceAll {
    public int valid;
    public int support;
    public int get_status;
    public CommandAll_Info[] port;
    public CommandAll_Info[] rg;
    public CommandAll_Info[] lu;
    public LuEx_Info[] lu_ex;
    public int all_cache_size;
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
    public int update_count;
    public CachePartitionAll_Info[] cachePartition;
    public CacheBusAll_Info cachebus;
    public CommandAll_Info[] backend;

    /** 60 rows of 30. */
    public DriveAll_Info[][] drive;

    public ProcessorAll_Info processor;
    public ProcessorAll_Info[] processor_core;
    public VUDataAll_Info[] vu_port;
    public VUCommandAll_Info[] vu_lu;
    public QVTime mtime;
    public int err_code;
}
