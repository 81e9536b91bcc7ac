package tessaly.str.diskarray;

/** A Gemlyn pair to split. */
public class SplitGemlynPair extends PairOperation {
    /** Forced split, the library's own value. */
    public int forced_split;
    /** Message to keep with the pair, at most 31 bytes; not null. */
    public String add_message = "";
}
