package tessaly.str.diskarray;

/**
 * Times of one kind of command to an LU, in the library's own unit. A time is in two words: high
 * times 2^32 plus low, unsigned.
 */
public class LuEx_CommandInfo {
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** Commands. */
    public int command_count;
    /** Time of all commands, high word. */
    public int command_total_time_h;
    /** Time of all commands, low word. */
    public int command_total_time_l;
    /** Time of the longest command, high word. */
    public int command_max_time_h;
    /** Time of the longest command, low word. */
    public int command_max_time_l;
    /** Delayed commands of the class "up to 300". */
    public int delay_command_count_upto300;
    /** Delayed commands of the class "up to 500". */
    public int delay_command_count_upto500;
    /** Delayed commands of the class "up to 1000". */
    public int delay_command_count_upto1000;
    /** Delayed commands of the class "1000 or more". */
    public int delay_command_count_ormore1000;
}
