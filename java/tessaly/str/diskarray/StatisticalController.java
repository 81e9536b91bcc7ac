package tessaly.str.diskarray;

/** How often and how long a controller ran. */
public class StatisticalController {
    public int power_on;
    public int reset;
    public int total_time;
    public int on_time;
    public int total_time_rap_cnt;
    public int total_time_rap_cnt_work;
    public int lu_change;
    public int[] procnt_time;
}
