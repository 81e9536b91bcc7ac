package tessaly.str.diskarray;

/** A Farlink pair to split. */
public class SplitFarlinkPair extends PairOperation {
    /** At most 8 bytes. */
    public String remote_serial = "";
    public int access_restrict;
    public int forced_rw;
}
