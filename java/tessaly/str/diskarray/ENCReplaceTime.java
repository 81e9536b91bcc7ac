package tessaly.str.diskarray;

/** A time in the replacement of a microprogram. */
public class ENCReplaceTime {
    public int year;
    public int month;
    public int day;
    public int hour;
    public int minute;
    public int second;
}
