package tessaly.str.diskarray;

/** The settings of asynchronous Farlink pairs. */
public class FarlinkAsyncOption {
    /** Option, the library's own value. */
    public int option;
    /** Which fields the array supports, the library's own value. */
    public int support_index;
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** Control flag, the library's own value. */
    public int ctrl_flag;
    /** Set index, the library's own value. */
    public int set_index;
    /** Cycle time in the library's own unit. */
    public int cycle_time;
    /** Message about the cycle time, the library's own value. */
    public int cycle_time_message;
    /** Inhibit time of the queue in the library's own unit. */
    public int queue_inhibit_time;
}
