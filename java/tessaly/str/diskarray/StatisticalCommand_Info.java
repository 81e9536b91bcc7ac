package tessaly.str.diskarray;

/** Command counts of an LU. A counter has 32 bits without a sign, and may begin again from 0. */
public class StatisticalCommand_Info {
    /** Read commands. */
    public int read_count;
    /** Write commands. */
    public int write_count;
    /** Read commands of the kind "cache". */
    public int read_cache;
    /** Write commands of the kind "cache". */
    public int write_cache;
}
