package tessaly.str.diskarray;

/** The Zencopy pairs of an array. */
public class ZencopyInformation {
    /** Option, the library's own value. */
    public int option;
    /** How many elements of <code>lu</code> are in use. */
    public int pair_count;
    /** 2,048 elements, used or not. */
    public ZencopyLuInfo[] lu;
}
