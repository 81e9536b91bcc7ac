package tessaly.str.diskarray;

/** A pair, as a coupling of two logical units. */
public class CouplingLU {
    /** State of the primary side, the library's own value. */
    public int primary_stat;
    /** State of the secondary side, the library's own value. */
    public int second_stat;
    /** Detail of the secondary side's state, the library's own value. */
    public int second_stat_detail;
    /** Number of the primary logical unit. */
    public int primary_lu;
    /** Number of the secondary logical unit. */
    public int second_lu;
    /** Switch state of the primary side, the library's own value. */
    public int primary_switch_stat;
    /** Switch state of the secondary side, the library's own value. */
    public int second_switch_stat;
    /** Mirror number, the library's own value. */
    public int mirror_no;
    /** Capacity in blocks of 512 bytes, high word. */
    public int capacity_h;
    /** Capacity in blocks of 512 bytes, low word. */
    public int capacity_l;
    /** Synchronised rate, the library's own value; percent over the simulator. */
    public int synchronized_rate;
    /** When the pair was split. */
    public DateTime split_time;
    /** Message of the pair. */
    public String add_message;
    /** Whether the pair is in a consistency group; 0 is no. */
    public int ctg_valid;
    /** Number of its group. */
    public int ctg_no;
    /** Name of its group. */
    public String ctg_name;
    /** Name of the pair. */
    public String pair_name;
    /** Copy speed, the library's own value. */
    public int copy_speed;
}
