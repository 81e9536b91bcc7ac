package tessaly.str.diskarray;

/** Errors of a virtual unit. */
public class VUError_Info {
    public int valid;
    public int support;
    public int timeout_error_count;
}
