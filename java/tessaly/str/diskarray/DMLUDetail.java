package tessaly.str.diskarray;

/** A data-management LU. */
public class DMLUDetail {
    /** Not 0 where the entry is in use. */
    public int dmlu_valid;
    /** Whether the entry is to be set, the library's own value. */
    public int set_valid;
    /** LU number. */
    public int dmlu_lu;
}
