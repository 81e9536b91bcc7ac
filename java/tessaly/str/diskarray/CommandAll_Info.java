package tessaly.str.diskarray;

/** Commands of a port, a RAID group, an LU, a path or a drive. */
public class CommandAll_Info {
    public int valid;
    public int support;
    public int read_count;
    public int write_count;
    public int read_cache;
    public int write_cache;
    public int read_size;
    public int write_size;
    public int online_verify_count;
}
