package tessaly.str.diskarray;

/** The part of a collection to write as CSV, and where to. */
public class PerformanceOutputCSVRequest {
    public String dirname;
    public PerformanceTime fromtime;
    public PerformanceTime totime;
    public int fromDataNum;
    public int toDataNum;
    public PerformanceCSVOutputOpt[] outputopt;
}
