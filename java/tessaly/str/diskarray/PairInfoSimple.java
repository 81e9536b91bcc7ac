package tessaly.str.diskarray;

/** Which logical units are paired. */
public class PairInfoSimple {
    /** Option, the library's own value. */
    public int option;
    /** How many elements of <code>pair</code> are in use. */
    public int pair_count;
    /** 4,094 elements, used or not. */
    public PairLUInfoSimple[] pair;
}
