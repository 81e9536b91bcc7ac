package tessaly.str.diskarray;

/** A logical unit (LU) in a RAID group. */
public class LogicalUnit {
    /** LU number. */
    public int luNumber;
    /** RAID group that holds the LU. */
    public int rgNumber;
    /** RAID level of that group, the library's own value. */
    public int raid_level;
    /** Staging setting, the library's own value. */
    public int staging;
    /** Capacity in one word, in the library's own unit; the two words have all of it. */
    public int capacity;
    /** Capacity in blocks of 512 bytes, high word. */
    public int capacity_h;
    /** Capacity, low word. */
    public int capacity_l;
    /**
     * LU that precedes this one in the RAID group; what it is for the first one is the library's
     * own.
     */
    public int befor_lun;
    /** Cache partition number. */
    public int cachepart_no;
    /** Not 0 where <code>pair_cachepart_no</code> is valid. */
    public int pair_cachepart_valid;
    /** Cache partition when paired. */
    public int pair_cachepart_no;
    /** Cache partition now in use. */
    public int current_cachepart_no;
    /** Stripe size, in the library's own unit. */
    public int stripe;
    /** Use of the LU, the library's own value. */
    public int lu_use_type;
    /** Controller that owns the LU by default, the library's own number. */
    public int defaultCTL;
    /** Controller that owns it now, the library's own number. */
    public int currentCTL;
    /** LU status, the library's own value. */
    public int status;
    /** Host block size, in the library's own unit. */
    public int hostblock;
    /** Not 0 where the entry is in use. */
    public int lu_valid;
    /** Quick-format status, the library's own value. */
    public int qf_status;
    /** Parity-correction status, the library's own value. */
    public int correction_status;
    /** Whether this is the last LU of its RAID group. */
    public int rg_last_lu;
    /** Array model type, the library's own value. */
    public int unit_type;
    /** Array model sub-code, the library's own value. */
    public int unit_type_sub_code;
}
