package tessaly.str.diskarray;

/** A Gemlyn pair to create. */
public class CreateGemlynPair extends PairOperation {
    public int copy_speed;
    public int auto_split;
    public int no_read;
    public int no_copy;
}
