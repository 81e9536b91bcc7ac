package tessaly.str.diskarray;

/**
 * Two controllers' snapshots before and after an interval. All four are null in a new object; one
 * that is null reaches the library as it lay in memory.
 */
public class PerformanceOutputGraphInfoRequest {
    /** Snapshot of controller 0 before the interval. */
    public PerformanceAll preinfo0;
    /** Snapshot of controller 0 after the interval. */
    public PerformanceAll afterinfo0;
    /** Snapshot of controller 1 before the interval. */
    public PerformanceAll preinfo1;
    /** Snapshot of controller 1 after the interval. */
    public PerformanceAll afterinfo1;
}
