package tessaly.str.diskarray;

import java.util.Arrays;

/**
 * Two controllers' snapshots before and after an interval, and what to write of them.
 *
 * <p>The snapshots are null in a new object; one that is null reaches the library as it lay in
 * memory.
 *
 * <p>Layout assumed.
 */
public class PerformanceOutputAllExRequest {
    /** Path of the file, at most 1,023 bytes. Null is an empty one. */
    public String filename = "";
    /** Snapshot of controller 0 before the interval. */
    public PerformanceAll preinfo0;
    /** Snapshot of controller 0 after the interval. */
    public PerformanceAll afterinfo0;
    /** Snapshot of controller 1 before the interval. */
    public PerformanceAll preinfo1;
    /** Snapshot of controller 1 after the interval. */
    public PerformanceAll afterinfo1;
    /**
     * What to write, 2 elements. One that is lacking or null reaches the library as it lay in
     * memory; null ends the reading of what to write.
     */
    public PerformanceOutputSpecifyInfo[] specifyinfo = new PerformanceOutputSpecifyInfo[2];

    {
        Arrays.setAll(specifyinfo, index -> new PerformanceOutputSpecifyInfo());
    }

    /** The library's own count. */
    public int count;
    /** Mode, the library's own value. */
    public int mode;
    /** Form of the file, the library's own value. */
    public int file_fmt_mode;
}
