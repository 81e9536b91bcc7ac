package tessaly.str.diskarray;

/** A SnapShot pair to create. */
public class CreateSnapShotPair extends PairOperation {
    /** Number of the pool for the snapshot. */
    public int local_pool_no;
    /** Copy speed, the library's own value. */
    public int copy_speed;
    /** Automatic split, the library's own value. */
    public int auto_split;
}
