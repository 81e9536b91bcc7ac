package tessaly.str.diskarray;

/** A Farlink pair to create. */
public class CreateFarlinkPair extends PairOperation {
    public int pvol_lu_device;
    /** At most 8 bytes. */
    public String remote_serial = "";
    public int copy_speed;
    public int fence_lv;
    public int no_copy;
}
