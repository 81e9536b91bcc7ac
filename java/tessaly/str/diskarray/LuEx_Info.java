package tessaly.str.diskarray;

/**
 * Command times of an LU. As an argument no kind may be null: it ends the reading of the LU. All
 * are null in a new object.
 */
public class LuEx_Info {
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
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
