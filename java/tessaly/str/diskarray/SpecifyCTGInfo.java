package tessaly.str.diskarray;

/** The consistency group that an operation on pairs names. */
public class SpecifyCTGInfo {
    /** Whether a group is given. */
    public int ctg_set_flag;
    public int ctg_no;
    /** At most 31 bytes. */
    public String ctg_name = "";
}
