package tessaly.str.diskarray;

/** Command counts of an LU. */
public class StatisticalCommand_Info {
    public int read_count;
    public int write_count;
    public int read_cache;
    public int write_cache;
}
