package tessaly.str.diskarray;

/** Which logical units are paired. */
public class PairInfoSimple {
    public int option;
    public int pair_count;
    public PairLUInfoSimple[] pair;
}
