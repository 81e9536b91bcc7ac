package tessaly.str.diskarray;

/** How far the quick format of an LU is. */
public class QuickFormatStatus {
    public int entry;
    public int status;
    public int percent;
    public int waiting_number;
}
