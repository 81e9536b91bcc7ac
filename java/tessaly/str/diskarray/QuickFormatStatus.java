package tessaly.str.diskarray;

/** How far the quick format of an LU is. */
public class QuickFormatStatus {
    /** Whether the LU is entered for a quick format, the library's own value. */
    public int entry;
    /** Status of the quick format, the library's own value. */
    public int status;
    /** How much is done, in percent. */
    public int percent;
    /** Place among those that wait, the library's own count. */
    public int waiting_number;
}
