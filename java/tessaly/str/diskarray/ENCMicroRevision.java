package tessaly.str.diskarray;

/** The revisions in an enclosure firmware. */
public class ENCMicroRevision {
    public ENCRevision bas_rev;
    public ENCRevision ext_rev;
    /** 1 element. */
    public ENCRevision[] ext_rev_plus;
}
