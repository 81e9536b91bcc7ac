package tessaly.str.diskarray;

/** A logical unit (LU) in a RAID group. */
public class LogicalUnit {
    /** LU number. */
    public int luNumber;
    /** RAID group that holds the LU. */
    public int rgNumber;
    /** RAID level of that group. */
    public int raid_level;
    /** Staging setting. */
    public int staging;
    public int capacity;
    /** Capacity, high word. */
    public int capacity_h;
    /** Capacity, low word. */
    public int capacity_l;
    /** LU that precedes this one in the RAID group. */
    public int befor_lun;
    /** Cache partition. */
    public int cachepart_no;
    /** Whether <code>pair_cachepart_no</code> is valid. */
    public int pair_cachepart_valid;
    /** Cache partition when paired. */
    public int pair_cachepart_no;
    /** Cache partition now in use. */
    public int current_cachepart_no;
    /** Stripe size. */
    public int stripe;
    /** Use of the LU. */
    public int lu_use_type;
    /** Controller that owns the LU by default. */
    public int defaultCTL;
    /** Controller that owns it now. */
    public int currentCTL;
    /** LU status. */
    public int status;
    /** Host block size. */
    public int hostblock;
    /** Whether the entry is in use. */
    public int lu_valid;
    /** Quick-format status. */
    public int qf_status;
    /** Parity-correction status. */
    public int correction_status;
    /** Whether this is the last LU of its RAID group. */
    public int rg_last_lu;
    /** Array model type. */
    public int unit_type;
    /** Array model sub-code. */
    public int unit_type_sub_code;
}
