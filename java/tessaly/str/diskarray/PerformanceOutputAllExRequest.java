package tessaly.str.diskarray;

import java.util.Arrays;

/**
 * Two controllers' snapshots before and after an interval, and what to write of them.
 *
 * <p>Layout assumed.
 */
public class PerformanceOutputAllExRequest {
    public String filename = "";
    public PerformanceAll preinfo0;
    public PerformanceAll afterinfo0;
    public PerformanceAll preinfo1;
    public PerformanceAll afterinfo1;

    /** 2 elements. */
    public PerformanceOutputSpecifyInfo[] specifyinfo = new PerformanceOutputSpecifyInfo[2];

    {
        Arrays.setAll(specifyinfo, index -> new PerformanceOutputSpecifyInfo());
    }

    public int count;
    public int mode;
    public int file_fmt_mode;
}
