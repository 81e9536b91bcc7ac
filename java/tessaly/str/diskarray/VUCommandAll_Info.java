package tessaly.str.diskarray;

/**
 * Commands of a virtual unit, times in the library's own unit. A time is in two words: high times
 * 2^32 plus low, unsigned.
 */
public class VUCommandAll_Info {
    /** Not 0 where the entry is in use. */
    public int valid;
    /** Which of the values the array supports, the library's own value. */
    public int support;
    /** Commands. */
    public int command_count;
    /** Blocks transferred. */
    public int command_transfer_block_count;
    /** Time of all commands, high word. */
    public int command_total_time_h;
    /** Time of all commands, low word. */
    public int command_total_time_l;
    /** Time of the longest command, high word. */
    public int command_max_time_h;
    /** Time of the longest command, low word. */
    public int command_max_time_l;
}
