package tessaly.str.diskarray;

/**
 * Commands of a port, a RAID group, an LU, a back-end path or a drive. A counter has 32 bits
 * without a sign, and may begin again from 0.
 */
public class CommandAll_Info {
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** Read commands. */
    public int read_count;
    /** Write commands. */
    public int write_count;
    /** Read commands of the kind "cache". */
    public int read_cache;
    /** Write commands of the kind "cache". */
    public int write_cache;
    /** Data read, in the library's own unit. */
    public int read_size;
    /** Data written, in the library's own unit. */
    public int write_size;
    /** Online verifies. */
    public int online_verify_count;
}
