package tessaly.str.diskarray;

/** Power-on and reset counts of a controller, and its times. */
public class StatisticalController {
    /** Power-on count. */
    public int power_on;
    /** Reset count. */
    public int reset;
    /** Time in total, in the library's own unit; seconds over the simulator. */
    public int total_time;
    /** Time of the kind "on", in the same unit. */
    public int on_time;
    /** The library's own counter. */
    public int total_time_rap_cnt;
    /** The library's own counter. */
    public int total_time_rap_cnt_work;
    /** Changes of LUs, the library's own count. */
    public int lu_change;
    /** The library's own times, 4 elements. */
    public int[] procnt_time;
}
