package tessaly.str.diskarray;

/** The firmware revisions of one enclosure controller. */
public class ENCRevision {
    public int valid_index;
    public String rev_main;
    public String rev_boot;
    public String rev_ectl;
    public String rev_rtr;
    public String rev_ses;
    public String rev_sas;
}
