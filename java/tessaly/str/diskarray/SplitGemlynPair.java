package tessaly.str.diskarray;

/** A Gemlyn pair to split. */
public class SplitGemlynPair extends PairOperation {
    public int forced_split;
    /** At most 31 bytes. */
    public String add_message = "";
}
