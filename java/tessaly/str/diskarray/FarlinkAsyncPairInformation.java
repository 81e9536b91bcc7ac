package tessaly.str.diskarray;

/** The asynchronous Farlink pairs of an array and their consistency groups. */
public class FarlinkAsyncPairInformation {
    /** Option, the library's own value. */
    public int option;
    /** How many elements of <code>lu</code> are in use. */
    public int pair_count;
    /** 8,192 elements, used or not. */
    public FarlinkAsyncLuInfo[] lu;
    /** 16 elements, used or not: <code>ctg_valid</code> of their controllers tells. */
    public FarlinkAsyncCTGInfo[] ctg;
}
