package tessaly.str.diskarray;

/** A Longlink pair to create. */
public class CreateLonglinkPair extends PairOperation {
    public int pvol_lu_device;
    /** At most 8 bytes. */
    public String remote_serial = "";
    public int auto_set;
    public int local_pool_no;
    public int remote_pool_no;
    public int copy_speed;
    public int no_copy;
}
