package tessaly.str.diskarray;

/** The LUs that are entered for formatting. */
public class FormatEntryList {
    /**
     * A byte for each LU from number 0 on, the library's own value; at least 2,048, of which the
     * first 2,048 count. Not null.
     */
    public byte[] lu = new byte[2048];
}
