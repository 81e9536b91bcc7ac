package tessaly.str.diskarray;

/** The pairs of an array, as couplings of two logical units. */
public class CouplingInfo {
    public int mrcf_lite;
    public int coupling_num;
    public CouplingLU[] coupling;
}
