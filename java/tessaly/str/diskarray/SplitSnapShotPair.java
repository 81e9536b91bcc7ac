package tessaly.str.diskarray;

/** A SnapShot pair to split. */
public class SplitSnapShotPair extends PairOperation {
    /** Message to keep with the pair, at most 31 bytes; not null. */
    public String add_message = "";
}
