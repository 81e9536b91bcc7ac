package tessaly.str.diskarray;

/** The asynchronous pairs of an array and their consistency groups. */
public class FarlinkAsyncPairInformation {
    public int option;
    public int pair_count;
    public FarlinkAsyncLuInfo[] lu;
    public FarlinkAsyncCTGInfo[] ctg;
}
