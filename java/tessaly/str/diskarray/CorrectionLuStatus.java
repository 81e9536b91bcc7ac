package tessaly.str.diskarray;

/** How far the parity correction of an LU is. */
public class CorrectionLuStatus {
    /** Status of the parity correction, the library's own value. */
    public int status;
    /** How much is done, in percent. */
    public int percent;
    /** Place among those that wait, the library's own count. */
    public int waiting_number;
}
