package tessaly.str.diskarray;

/** A Longlink pair to create. */
public class CreateLonglinkPair extends PairOperation {
    /** Device of the primary logical unit, the library's own value. */
    public int pvol_lu_device;
    /** Serial number of the other array, at most 8 bytes; not null. */
    public String remote_serial = "";
    /** Automatic setting, the library's own value. */
    public int auto_set;
    /** Number of the pool in this array. */
    public int local_pool_no;
    /** Number of the pool in the other array. */
    public int remote_pool_no;
    /** Copy speed, the library's own value. */
    public int copy_speed;
    /** No-copy setting, the library's own value. */
    public int no_copy;
}
