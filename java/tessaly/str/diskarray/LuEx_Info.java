package tessaly.str.diskarray;

/** Command times of an LU. */
public class LuEx_Info {
    public int valid;
    public int support;
    public LuEx_CommandInfo read_hit;
    public LuEx_CommandInfo write_hit;
    public LuEx_CommandInfo read_miss;
    public LuEx_CommandInfo write_miss;
    public LuEx_CommandInfo read_job;
    public LuEx_CommandInfo write_job;
    public int tag_count;
    public int total_tag_count;
    public int total_tag_set_count;
}
