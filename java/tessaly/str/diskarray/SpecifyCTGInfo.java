package tessaly.str.diskarray;

/** The consistency group that an operation on pairs names. */
public class SpecifyCTGInfo {
    /** Whether a group is given; 0 is no. */
    public int ctg_set_flag;
    /** Number of the group. */
    public int ctg_no;
    /** Name of the group, at most 31 bytes; not null. */
    public String ctg_name = "";
}
