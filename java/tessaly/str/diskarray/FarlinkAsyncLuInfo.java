package tessaly.str.diskarray;

/** An asynchronous Farlink pair. */
public class FarlinkAsyncLuInfo {
    /** Number of the logical unit in this array. */
    public int lun;
    /** State of the pair, the library's own value. */
    public int pair_status;
    /** Flag beside the state, the library's own value. */
    public int pair_status_dist_flag;
    /** Attribute of the pair, the library's own value. */
    public int pair_attr;
    /** Number of its consistency group. */
    public int ctg_num;
    /** Name of its group. */
    public String ctg_name;
    /** Name of the pair. */
    public String pair_name;
    /** Capacity in a single word, in the library's own unit. */
    public int lu_capacity;
    /** Capacity in blocks of 512 bytes, high word. */
    public int lu_capacity_h;
    /** Capacity in blocks of 512 bytes, low word. */
    public int lu_capacity_l;
    /** Number of the logical unit in the other array. */
    public int remote_lu;
    /** Serial number of the other array. */
    public String remote_serial;
    /** Validity of the member, the library's own value. */
    public int member_valid;
    /** Synchronised rate, the library's own value. */
    public int synchronized_rate;
    /** Difference in a single word, in the library's own unit. */
    public int difference_capacity;
    /** Difference in the library's own unit, high word. */
    public int difference_capacity_h;
    /** Difference in the library's own unit, low word. */
    public int difference_capacity_l;
    /** Rate of the difference, the library's own value. */
    public int difference_rate;
    /** When the pair was synchronised. */
    public DateTime synchronized_time;
    /** Pool number. */
    public int pool_no;
    /** Used rate of the pool, the library's own value. */
    public int pool_usedrate;
    /** Copy speed, the library's own value. */
    public int copy_speed;
    /** Fence level, the library's own value. */
    public int fence_level;
    /** Sequence number of the synchronisation, the library's own value. */
    public int synchronized_sequence_no;
    /** The same of the secondary logical unit, the library's own value. */
    public int svol_synchronized_sequence_no;
    /** Resynchronisations of the primary logical unit, the library's own count. */
    public int pvol_resync_count;
    /** Resynchronisations of the secondary logical unit, the library's own count. */
    public int svol_resync_count;
    /** Cycle time in the library's own unit. */
    public int cycle_time;
}
