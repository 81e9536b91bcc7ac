package tessaly.str.diskarray;

/** Dual-controller events. The kinds are the library's own. */
public class StatisticalDual {
    /** Events of the kind "other_correct". */
    public int other_correct;
    /** Events of the kind "other_dual". */
    public int other_dual;
    /** Events of the kind "self_dual". */
    public int self_dual;
}
