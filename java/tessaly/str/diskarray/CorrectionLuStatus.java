package tessaly.str.diskarray;

/** How far the parity correction of an LU is. */
public class CorrectionLuStatus {
    public int status;
    public int percent;
    public int waiting_number;
}
