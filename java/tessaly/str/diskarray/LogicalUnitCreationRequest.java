package tessaly.str.diskarray;

/** A logical unit to create. */
public class LogicalUnitCreationRequest {
    /** LU number. */
    public int luNumber;
    /** RAID group. */
    public int rgNumber;
    /** Capacity, high word. */
    public int lu_capacity_h;
    /** Capacity, low word. */
    public int lu_capacity_l;
    /** How many elements of <code>befor_lun</code> are used. */
    public int befor_lun_count;
    /** LU numbers; at least 128 elements, of which the first 128 count. */
    public int[] befor_lun = new int[128];
    public int cachepart_no;
    public int pair_cachepart_valid;
    public int pair_cachepart_no;
    public int stripe;
    public int lu_use_type;
    public int hostblock;
}
