package tessaly.str.diskarray;

/** The transfer of a consistency group through one controller. */
public class FarlinkAsyncCTGCTLInfo {
    public int ctg_valid;
    public QVApiTime lapsed_time;
    public int remains_difference;
    public int rate_status;
    public int transfer_rate;
    public int prediction_status;
    public QVApiTime prediction_time;
}
