package tessaly.str.diskarray;

import java.util.Arrays;

/**
 * The part of a collection to write as CSV, and where to. A field that is null ends the reading: it
 * and the fields behind it reach the library as they lay in memory. Layout assumed.
 */
public class PerformanceOutputCSVRequest {
    /** Path of the directory, at most 1,023 bytes. */
    public String dirname = "";
    /** Time of the first interval. */
    public PerformanceTime fromtime = new PerformanceTime();
    /** Time of the last interval. */
    public PerformanceTime totime = new PerformanceTime();
    /** Number of the first interval, the library's own value. */
    public int fromDataNum;
    /** Number of the last interval, the library's own value. */
    public int toDataNum;
    /** Options, at most 64 elements, without a known field. */
    public PerformanceCSVOutputOpt[] outputopt = new PerformanceCSVOutputOpt[64];

    {
        Arrays.setAll(outputopt, index -> new PerformanceCSVOutputOpt());
    }
}
