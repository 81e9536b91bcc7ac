package tessaly.str.diskarray;

/** The settings of asynchronous pairs. */
public class FarlinkAsyncOption {
    public int option;
    public int support_index;
    public int valid_index;
    public int ctrl_flag;
    public int set_index;
    public int cycle_time;
    public int cycle_time_message;
    public int queue_inhibit_time;
}
