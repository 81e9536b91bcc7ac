package tessaly.str.diskarray;

/** A date and a time of day. Every value is as the library gives it. */
public class DateTime {
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
