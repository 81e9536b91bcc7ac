package tessaly.str.diskarray;

/** Errors of a virtual unit. */
public class VUError_Info {
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** Commands that timed out. */
    public int timeout_error_count;
}
