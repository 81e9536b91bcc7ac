package tessaly.str.diskarray;

/** A SnapShot pair to split. */
public class SplitSnapShotPair extends PairOperation {
    /** At most 31 bytes. */
    public String add_message = "";
}
