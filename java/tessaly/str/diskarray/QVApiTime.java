package tessaly.str.diskarray;

/** A span of time: the sum of its fields. */
public class QVApiTime {
    /** Hours. */
    public int hour;
    /** Minutes. */
    public int minute;
    /** Seconds. */
    public int second;
}
