package tessaly.str.diskarray;

/** A Longlink pair to split. */
public class SplitLonglinkPair extends PairOperation {
    /** Serial number of the other array, at most 8 bytes; not null. */
    public String remote_serial = "";
    /** Access restriction, the library's own value. */
    public int access_restrict;
    /** Split of cascaded virtual volumes, the library's own value. */
    public int cascade_vvol_split;
}
