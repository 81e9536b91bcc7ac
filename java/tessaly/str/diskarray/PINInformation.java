package tessaly.str.diskarray;

/** Pinned data by logical unit. The values are the library's own. */
public class PINInformation {
    /** The library's own value. */
    public int unite_option;
    /** A value for each single logical unit, 8,192 elements. */
    public int[] single_lu;
    /** A value for each united logical unit, 8,192 elements. */
    public int[] unite_lu;
    /** Details for each single logical unit, 8,192 elements. */
    public PINInfoDetail[] single_lu_detail;
    /** Details for each united logical unit, 8,192 elements. */
    public PINInfoDetail[] unite_lu_detail;
}
