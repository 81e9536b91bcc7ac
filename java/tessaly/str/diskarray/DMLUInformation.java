package tessaly.str.diskarray;

/** The data-management LUs. */
public class DMLUInformation {
    public int mode;
    public int dmlu_count;
    /** Always 2 elements. */
    public DMLUDetail[] dmlu;
}
