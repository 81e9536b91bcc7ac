package tessaly.str.diskarray;

/** A SnapShot pair to create. */
public class CreateSnapShotPair extends PairOperation {
    public int local_pool_no;
    public int copy_speed;
    public int auto_split;
}
