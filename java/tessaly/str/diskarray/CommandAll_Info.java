package tessaly.str.diskarray;

/**
 * Commands of a port, a RAID group, an LU, a path or a drive. A counter has 32 bits without a sign,
 * and may begin again from 0.
 */
public class CommandAll_Info {
    /** Marks an entry in use: 0 where it is not. */
    public int valid;
    /** Whether the array counts it, the library's own value. */
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
    /** Verifications while the array runs. */
    public int online_verify_count;
}
