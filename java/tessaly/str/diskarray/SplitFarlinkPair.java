package tessaly.str.diskarray;

/** A Farlink pair to split. */
public class SplitFarlinkPair extends PairOperation {
    /** Serial number of the other array, at most 8 bytes; not null. */
    public String remote_serial = "";
    /** Access restriction, the library's own value. */
    public int access_restrict;
    /** Forced reading and writing, the library's own value. */
    public int forced_rw;
}
