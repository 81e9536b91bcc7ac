package tessaly.str.diskarray;

/** A span of time. */
public class QVApiTime {
    public int hour;
    public int minute;
    public int second;
}
