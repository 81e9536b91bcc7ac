package tessaly.str.diskarray;

/** The Farlink pairs of an array. */
public class FarlinkPairInformation {
    public int option;
    public int pair_count;
    public FarlinkLuInfo[] lu;
}
