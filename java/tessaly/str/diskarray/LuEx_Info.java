package tessaly.str.diskarray;

/** Command times of an LU. As an argument no kind may be null: it ends the reading of the LU. */
public class LuEx_Info {
    /** Marks an entry in use: 0 where it is not. */
    public int valid;
    /** Whether the array counts it, the library's own value. */
    public int support;
    /** Reads that hit the cache. */
    public LuEx_CommandInfo read_hit;
    /** Writes that hit the cache. */
    public LuEx_CommandInfo write_hit;
    /** Reads that missed the cache. */
    public LuEx_CommandInfo read_miss;
    /** Writes that missed the cache. */
    public LuEx_CommandInfo write_miss;
    /** Read jobs. */
    public LuEx_CommandInfo read_job;
    /** Write jobs. */
    public LuEx_CommandInfo write_job;
    /** Tags, the library's own count. */
    public int tag_count;
    /** Tags in total, the library's own count. */
    public int total_tag_count;
    /** Tags set in total, the library's own count. */
    public int total_tag_set_count;
}
