package tessaly.str.diskarray;

/** Two controllers' snapshots before and after an interval. */
public class PerformanceOutputGraphInfoRequest {
    /**
     * Snapshot of controller 0 before the interval; for null the library gets an unfilled record.
     */
    public PerformanceAll preinfo0;
    /**
     * Snapshot of controller 0 after the interval; for null the library gets an unfilled record.
     */
    public PerformanceAll afterinfo0;
    /**
     * Snapshot of controller 1 before the interval; for null the library gets an unfilled record.
     */
    public PerformanceAll preinfo1;
    /**
     * Snapshot of controller 1 after the interval; for null the library gets an unfilled record.
     */
    public PerformanceAll afterinfo1;
}
