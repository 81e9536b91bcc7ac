package tessaly.str.diskarray;

/** A time in the replacement of a microprogram. */
public class ENCReplaceTime {
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
