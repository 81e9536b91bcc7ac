package tessaly.str.diskarray;

/**
 * All counters of one controller at one time; tables hold every slot, occupied or not.
 *
 * <p>Counters go on from snapshot to snapshot: what happened between two is their difference. One
 * of 32 bits may begin again from 0 in between, so that <code>(after - before) &amp;
 * 0xFFFFFFFFL</code> is the right one.
 *
 * <p>As an argument hand over what {@link DiskArrayUtilityJNI#QV_GetPerformanceAll} returned. A
 * member that is null ends the reading: it and the members behind it reach the library as they lay
 * in memory, and so do the elements that an array lacks. Objects and arrays are null in a new
 * object.
 */
public class PerformanceAll {
    /** Whether the snapshot is valid, the library's own value. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** How the snapshot was taken, the library's own code. */
    public int get_status;
    /** The ports, 8 elements. */
    public CommandAll_Info[] port;
    /** The RAID groups, 200 elements: the index is the group's number. */
    public CommandAll_Info[] rg;
    /** The LUs, 8,192 elements: the index is the LU's number. */
    public CommandAll_Info[] lu;
    /** Command times of the LUs, 8,192 elements. */
    public LuEx_Info[] lu_ex;
    /** Size of the cache, in the library's own unit; MiB over the simulator. */
    public int all_cache_size;
    /** Used of the cache. */
    public int used_cache_size;
    /** Used of the cache, clean. */
    public int used_cache_clean;
    /** Used of the cache, of the kind "middle". */
    public int used_cache_middle;
    /** Used of the cache, of the kind "physical". */
    public int used_cache_physical;
    /** Used of the cache, high word. */
    public int used_cache_size_h;
    /** Used of the cache, low word. */
    public int used_cache_size_l;
    /** Used of the cache, clean, high word. */
    public int used_cache_clean_h;
    /** Used of the cache, clean, low word. */
    public int used_cache_clean_l;
    /** Used of the cache, of the kind "middle", high word. */
    public int used_cache_middle_h;
    /** Used of the cache, of the kind "middle", low word. */
    public int used_cache_middle_l;
    /** Used of the cache, of the kind "physical", high word. */
    public int used_cache_physical_h;
    /** Used of the cache, of the kind "physical", low word. */
    public int used_cache_physical_l;
    /** How often the counters were brought up to date. */
    public int update_count;
    /** The cache partitions, 64 elements. */
    public CachePartitionAll_Info[] cachePartition;
    /** The cache bus. */
    public CacheBusAll_Info cachebus;
    /** The back-end paths, 8 elements. */
    public CommandAll_Info[] backend;
    /** The drives by enclosure and slot, 60 rows of 30. */
    public DriveAll_Info[][] drive;
    /** The processor. */
    public ProcessorAll_Info processor;
    /** Its cores, 4 elements. */
    public ProcessorAll_Info[] processor_core;
    /** The paths to virtual units, 8 elements. */
    public VUDataAll_Info[] vu_port;
    /** The LUs of virtual units, 8,192 elements. */
    public VUCommandAll_Info[] vu_lu;
    /** When the snapshot was taken. */
    public QVTime mtime;
    /** The library's own code of an error. */
    public int err_code;
}
