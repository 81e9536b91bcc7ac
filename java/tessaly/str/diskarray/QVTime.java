package tessaly.str.diskarray;

/** A calendar time, as the C library has it: the month from 0, the year since 1900. */
public class QVTime {
    public int tm_sec;
    public int tm_min;
    public int tm_hour;
    public int tm_mday;
    public int tm_mon;
    public int tm_year;
    public int tm_wday;
    public int tm_yday;
    public int tm_isdst;
}
