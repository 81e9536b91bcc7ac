package tessaly.str.diskarray;

/** The LUs that are entered for a quick format. */
public class QuickFormatEntryList {
    /**
     * A byte for each LU from number 0 on, the library's own value; at least 8,192, of which the
     * first 8,192 count. Not null.
     */
    public byte[] lu = new byte[8192];
}
