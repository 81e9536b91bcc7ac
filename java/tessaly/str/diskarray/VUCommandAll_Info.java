package tessaly.str.diskarray;

/** Commands of a virtual unit. */
public class VUCommandAll_Info {
    public int valid;
    public int support;
    public int command_count;
    public int command_transfer_block_count;
    public int command_total_time_h;
    public int command_total_time_l;
    public int command_max_time_h;
    public int command_max_time_l;
}
