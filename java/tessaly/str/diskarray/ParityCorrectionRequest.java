package tessaly.str.diskarray;

/** The LUs whose parity is to be corrected. */
public class ParityCorrectionRequest {
    /** Correction mode, the library's own value. */
    public int correction_mode;
    /** How many elements of <code>lu</code> are used; not compared with its length. */
    public int lu_count;
    /** LU numbers; at least 8,192 elements, of which the first 8,192 count. Not null. */
    public int[] lu = new int[8192];
}
