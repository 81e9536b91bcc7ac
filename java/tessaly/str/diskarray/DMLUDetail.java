package tessaly.str.diskarray;

/** A data-management LU. */
public class DMLUDetail {
    public int dmlu_valid;
    public int set_valid;
    public int dmlu_lu;
}
