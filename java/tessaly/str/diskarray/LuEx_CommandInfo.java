package tessaly.str.diskarray;

/** Times of one kind of command to an LU. */
public class LuEx_CommandInfo {
    public int valid;
    public int support;
    public int command_count;
    public int command_total_time_h;
    public int command_total_time_l;
    public int command_max_time_h;
    public int command_max_time_l;
    public int delay_command_count_upto300;
    public int delay_command_count_upto500;
    public int delay_command_count_upto1000;
    public int delay_command_count_ormore1000;
}
