package tessaly.str.diskarray;

/** A logical unit to create. */
public class LogicalUnitCreationRequest {
    /** LU number. */
    public int luNumber;
    /** RAID group that is to hold the LU. */
    public int rgNumber;
    /** Capacity in blocks of 512 bytes, high word. */
    public int lu_capacity_h;
    /** Capacity, low word. */
    public int lu_capacity_l;
    /** How many elements of <code>befor_lun</code> are used; not compared with its length. */
    public int befor_lun_count;
    /**
     * LUs that precede the new one; at least 128 elements, of which the first 128 count. Not null.
     */
    public int[] befor_lun = new int[128];
    /** Cache partition number. */
    public int cachepart_no;
    /** Not 0 where <code>pair_cachepart_no</code> is valid. */
    public int pair_cachepart_valid;
    /** Cache partition when paired. */
    public int pair_cachepart_no;
    /** Stripe size, in the library's own unit. */
    public int stripe;
    /** Use of the LU, the library's own value. */
    public int lu_use_type;
    /** Host block size, in the library's own unit. */
    public int hostblock;
}
