package tessaly.str.diskarray;

/** Hours, minutes and seconds. Every value is as the library gives it. */
public class QVApiTime {
    /** Hours. */
    public int hour;
    /** Minutes. */
    public int minute;
    /** Seconds. */
    public int second;
}
