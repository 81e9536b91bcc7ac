package tessaly.str.diskarray;

/** What passed between two controllers. */
public class StatisticalDual {
    public int other_correct;
    public int other_dual;
    public int self_dual;
}
