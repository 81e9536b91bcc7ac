package tessaly.str.diskarray;

/** An operation on pairs that needs no more than what it is on, and the beginning of all others. */
public class PairOperation {
    /** Whether the target is given by its group or by its pair. */
    public int set_division;
    /** Whether a consistency group is in use. */
    public int ctg_valid;
    public SpecifyCTGInfo ctg_info = new SpecifyCTGInfo();
    public SpecifyPairInfo pair_info = new SpecifyPairInfo();
}
