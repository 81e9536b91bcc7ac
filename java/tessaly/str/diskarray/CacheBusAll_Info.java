package tessaly.str.diskarray;

/** How long the cache bus was in use, and by what, in the library's own unit of time. */
public class CacheBusAll_Info {
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** Time of the observation. */
    public int cachebus_monitoring_time;
    /** Time in use. */
    public int cachebus_used_time;
    /** Time in use by hosts. */
    public int host_cachebus_used_time;
    /** Time in use by drives. */
    public int drive_cachebus_used_time;
    /** Time in use of the kind "drr". */
    public int drr_cachebus_used_time;
    /** Time in use by the processor. */
    public int cpu_cachebus_used_time;
    /** Time in use of the kind "dual". */
    public int dual_cachebus_used_time;
}
