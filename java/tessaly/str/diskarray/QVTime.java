package tessaly.str.diskarray;

/** A calendar time, as the C library has it. Every value passes as it is. */
public class QVTime {
    /** Second, 0 to 59; 60 for a leap second. */
    public int tm_sec;
    /** Minute, 0 to 59. */
    public int tm_min;
    /** Hour, 0 to 23. */
    public int tm_hour;
    /** Day of the month, 1 to 31. */
    public int tm_mday;
    /** Month, 0 to 11. */
    public int tm_mon;
    /** Years since 1900. */
    public int tm_year;
    /** Day of the week, 0 to 6 from Sunday on. */
    public int tm_wday;
    /** Day of the year, 0 to 365. */
    public int tm_yday;
    /**
     * Whether it is daylight saving time: more than 0 for yes, 0 for no, less where that is not
     * known.
     */
    public int tm_isdst;
}
