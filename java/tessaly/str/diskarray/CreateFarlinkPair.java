package tessaly.str.diskarray;

/** A Farlink pair to create. */
public class CreateFarlinkPair extends PairOperation {
    /** Device of the primary logical unit, the library's own value. */
    public int pvol_lu_device;
    /** Serial number of the other array, at most 8 bytes; not null. */
    public String remote_serial = "";
    /** Copy speed, the library's own value. */
    public int copy_speed;
    /** Fence level, the library's own value. */
    public int fence_lv;
    /** No-copy setting, the library's own value. */
    public int no_copy;
}
