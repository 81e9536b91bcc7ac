package tessaly.str.diskarray;

/** Data that is pinned in the cache, by logical unit. */
public class PINInformation {
    public int unite_option;
    /** 8192 elements. */
    public int[] single_lu;
    /** 8192 elements. */
    public int[] unite_lu;
    /** 8192 elements. */
    public PINInfoDetail[] single_lu_detail;
    /** 8192 elements. */
    public PINInfoDetail[] unite_lu_detail;
}
