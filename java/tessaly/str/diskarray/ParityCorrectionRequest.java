package tessaly.str.diskarray;

/** The LUs whose parity is to be corrected. */
public class ParityCorrectionRequest {
    public int correction_mode;
    public int lu_count;
    /** LU numbers; at least 8,192 elements, of which the first 8,192 count. */
    public int[] lu = new int[8192];
}
