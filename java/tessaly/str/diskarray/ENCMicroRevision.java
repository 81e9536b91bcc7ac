package tessaly.str.diskarray;

/** The microprograms of the kinds of enclosure controllers. */
public class ENCMicroRevision {
    /** That of the kind "bas". */
    public ENCRevision bas_rev;
    /** That of the kind "ext". */
    public ENCRevision ext_rev;
    /** That of the kind "ext plus", 1 element. */
    public ENCRevision[] ext_rev_plus;
}
