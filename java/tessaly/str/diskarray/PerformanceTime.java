package tessaly.str.diskarray;

/** A time of a collection. */
public class PerformanceTime {
    /** Year; in full over the simulator. */
    public int year;
    /** Month; from 1 over the simulator. */
    public int month;
    /** Day of the month. */
    public int day;
    /** Hour. */
    public int hour;
    /** Minute. */
    public int minute;
    /** Second. */
    public int second;
}
