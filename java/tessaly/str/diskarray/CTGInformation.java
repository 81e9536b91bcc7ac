package tessaly.str.diskarray;

/** The consistency groups of pairs inside the array, and those of remote pairs. */
public class CTGInformation {
    /**
     * Groups of pairs inside the array: 256 elements, in use where <code>ctg_valid</code> is not 0.
     */
    public CTGInfo[] gmss_info;
    /** Groups of remote pairs: 256 elements, in use where <code>ctg_valid</code> is not 0. */
    public CTGInfo[] flfle_info;
}
