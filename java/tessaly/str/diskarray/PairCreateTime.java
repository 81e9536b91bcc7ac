package tessaly.str.diskarray;

/** When a copy pair was created. Every value is as the library gives it. */
public class PairCreateTime {
    /** Year. */
    public int year;
    /** Month. */
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
