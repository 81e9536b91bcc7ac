package tessaly.str.diskarray;

/** The attributes of a pair to change. */
public class PairChange {
    public int ctg_copytype;
    public int ctg_valid;
    public SpecifyCTGInfo ctg_info = new SpecifyCTGInfo();
    public SpecifyPairInfo pair_info = new SpecifyPairInfo();
    public int pair_attr;
    /** At most 8 bytes. */
    public String remote_serial = "";
    /** At most 31 bytes. */
    public String new_pair_name = "";
    public int copy_speed;
}
