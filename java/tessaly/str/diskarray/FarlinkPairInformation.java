package tessaly.str.diskarray;

/** The Farlink pairs of an array. */
public class FarlinkPairInformation {
    /** Option, the library's own value. */
    public int option;
    /** How many elements of <code>lu</code> are in use. */
    public int pair_count;
    /** 8,192 elements, used or not. */
    public FarlinkLuInfo[] lu;
}
