package tessaly.str.diskarray;

/** A Farlink pair. */
public class FarlinkLuInfo {
    /** Which fields the array supports, the library's own value. */
    public int support_index;
    /** Which fields are valid, the library's own value. */
    public int valid_index;
    /** Number of the logical unit in this array. */
    public int lun;
    /** State of the pair, the library's own value. */
    public int pair_status;
    /** Detail of the state, the library's own value. */
    public int pair_status_detail;
    /** Attribute of the pair, the library's own value. */
    public int pair_attr;
    /** Changed rate, the library's own value. */
    public int changed_rate;
    /** Serial number of the other array. */
    public String remote_serial;
    /** Number of the logical unit in the other array. */
    public int remote_lu;
    /** Capacity in blocks of 512 bytes, high word. */
    public int capacity_h;
    /** Capacity in blocks of 512 bytes, low word. */
    public int capacity_l;
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
    /** Fence level, the library's own value. */
    public int fence_level;
}
