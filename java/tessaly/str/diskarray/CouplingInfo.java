package tessaly.str.diskarray;

/** The pairs of an array, as couplings of two logical units. */
public class CouplingInfo {
    /** The library's own value. */
    public int mrcf_lite;
    /** How many elements of <code>coupling</code> are in use. */
    public int coupling_num;
    /** 8,192 elements, used or not. */
    public CouplingLU[] coupling;
}
