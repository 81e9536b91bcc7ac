package tessaly.str.diskarray;

/** The pairs with arrays of another family. */
public class ZencopyInformation {
    public int option;
    public int pair_count;
    public ZencopyLuInfo[] lu;
}
