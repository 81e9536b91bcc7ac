package tessaly.str.diskarray;

/** The transfer of a consistency group through one controller. */
public class FarlinkAsyncCTGCTLInfo {
    /** Whether the entry is in use; 0 is no. */
    public int ctg_valid;
    /** Lapsed time. */
    public QVApiTime lapsed_time;
    /** Remaining difference in the library's own unit. */
    public int remains_difference;
    /** State of the rate, the library's own value. */
    public int rate_status;
    /** Transfer rate in the library's own unit. */
    public int transfer_rate;
    /** State of the prediction, the library's own value. */
    public int prediction_status;
    /** Predicted time. */
    public QVApiTime prediction_time;
}
