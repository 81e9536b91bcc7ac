package tessaly.str.diskarray;

/** A Longlink pair to split. */
public class SplitLonglinkPair extends PairOperation {
    /** At most 8 bytes. */
    public String remote_serial = "";
    public int access_restrict;
    public int cascade_vvol_split;
}
