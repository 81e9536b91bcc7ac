package tessaly.str.diskarray;

/** The attributes of a pair to change. */
public class PairChange {
    /** Copy type, the library's own value. */
    public int ctg_copytype;
    /** Whether a consistency group is in use; 0 is no. */
    public int ctg_valid;
    /** The group; not null, also where none is given. */
    public SpecifyCTGInfo ctg_info = new SpecifyCTGInfo();
    /** The pair; not null. */
    public SpecifyPairInfo pair_info = new SpecifyPairInfo();
    /** Attribute of the pair, the library's own value. */
    public int pair_attr;
    /** Serial number of the other array, at most 8 bytes; not null. */
    public String remote_serial = "";
    /** New name of the pair, at most 31 bytes; not null. */
    public String new_pair_name = "";
    /** Copy speed, the library's own value. */
    public int copy_speed;
}
