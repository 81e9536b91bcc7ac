package tessaly.str.diskarray;

/** Two controllers' snapshots before and after an interval. */
public class PerformanceOutputGraphInfoRequest {
    public PerformanceAll preinfo0;
    public PerformanceAll afterinfo0;
    public PerformanceAll preinfo1;
    public PerformanceAll afterinfo1;
}
