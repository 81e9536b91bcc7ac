package tessaly.str.diskarray;

/** Errors of a virtual unit. */
public class VUError_Info {
    /** Marks an entry in use: 0 where it is not. */
    public int valid;
    /** Whether the array counts it, the library's own value. */
    public int support;
    /** Commands that timed out. */
    public int timeout_error_count;
}
