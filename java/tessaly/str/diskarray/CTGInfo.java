package tessaly.str.diskarray;

/** A consistency group, as it is or as it is to be. */
public class CTGInfo {
    /** Whether the group is in use; 0 is no. */
    public int ctg_valid;
    /** Copy type of its pairs, the library's own value. */
    public int ctg_copytype;
    /** Number of the group. */
    public int ctg_no;
    /** Name of the group, at most 31 bytes; not null. */
    public String ctg_name = "";
    /** First detail of the pairs' state, the library's own value. */
    public int pair_status_detail0;
    /** Second detail of the pairs' state, the library's own value. */
    public int pair_status_detail1;
}
