package tessaly.str.diskarray;

/** An operation on pairs that needs no more than what it is on, and the beginning of all others. */
public class PairOperation {
    /** Whether the target is given by its group or by its pair, the library's own value. */
    public int set_division;
    /** Whether a consistency group is in use; 0 is no. */
    public int ctg_valid;
    /** The group; not null, also where none is given. */
    public SpecifyCTGInfo ctg_info = new SpecifyCTGInfo();
    /** The pair; not null, also where none is given. */
    public SpecifyPairInfo pair_info = new SpecifyPairInfo();
}
