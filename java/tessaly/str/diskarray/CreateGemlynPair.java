package tessaly.str.diskarray;

/** A Gemlyn pair to create. */
public class CreateGemlynPair extends PairOperation {
    /** Copy speed, the library's own value. */
    public int copy_speed;
    /** Automatic split, the library's own value. */
    public int auto_split;
    /** No-read setting, the library's own value. */
    public int no_read;
    /** No-copy setting, the library's own value. */
    public int no_copy;
}
