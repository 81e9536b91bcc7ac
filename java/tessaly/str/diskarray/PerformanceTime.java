package tessaly.str.diskarray;

/** A time of a collection. */
public class PerformanceTime {
    public int year;
    public int month;
    public int day;
    public int hour;
    public int minute;
    public int second;
}
