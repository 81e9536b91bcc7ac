package tessaly.str.diskarray;

/** The microprograms of the kinds of enclosure controllers. */
public class ENCMicroRevision {
    public ENCRevision bas_rev;
    public ENCRevision ext_rev;
    /** 1 element. */
    public ENCRevision[] ext_rev_plus;
}
