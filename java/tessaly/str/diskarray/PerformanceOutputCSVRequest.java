package tessaly.str.diskarray;

import java.util.Arrays;

/** The part of a collection to write as CSV, and where to. Layout assumed. */
public class PerformanceOutputCSVRequest {
    public String dirname = "";
    public PerformanceTime fromtime = new PerformanceTime();
    public PerformanceTime totime = new PerformanceTime();
    public int fromDataNum;
    public int toDataNum;
    public PerformanceCSVOutputOpt[] outputopt = new PerformanceCSVOutputOpt[64];

    {
        Arrays.setAll(outputopt, index -> new PerformanceCSVOutputOpt());
    }
}
