package tessaly.str.diskarray;

/** The LUs that are entered for formatting. */
public class FormatEntryList {
    /** A byte for each LU; at least 2,048, of which the first 2,048 count. */
    public byte[] lu = new byte[2048];
}
