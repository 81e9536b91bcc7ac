package tessaly.str.diskarray;

/** A date and a time of day. */
public class DateTime {
    public int year;
    public int month;
    public int day;
    public int hour;
    public int minute;
    public int second;
}
