package tessaly.str.diskarray;

/** The data-management LUs. */
public class DMLUInformation {
    /** Mode, the library's own value. */
    public int mode;
    /** Number of data-management LUs; the array has its full length all the same. */
    public int dmlu_count;
    /** Always 2 elements; hand over as many, none of them null. Null in a new object. */
    public DMLUDetail[] dmlu;
}
