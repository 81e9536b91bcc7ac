package tessaly.str.diskarray;

/** The microprogram of an enclosure controller, a revision for each of its portions. */
public class ENCRevision {
    /**
     * Which revisions are valid, the library's own value; over the simulator 0 where there is none.
     */
    public int valid_index;
    /** Main revision. */
    public String rev_main;
    /** Revision of the portion "boot". */
    public String rev_boot;
    /** Revision of the portion "ectl". */
    public String rev_ectl;
    /** Revision of the portion "rtr". */
    public String rev_rtr;
    /** Revision of the portion "ses". */
    public String rev_ses;
    /** Revision of the portion "sas". */
    public String rev_sas;
}
