package tessaly.str.diskarray;

/** A Zencopy pair. */
public class ZencopyLuInfo {
    /** Number of the logical unit in this array. */
    public int lun;
    /** State of the pair, the library's own value. */
    public int pair_status;
    /** Attribute of the pair, the library's own value. */
    public int pair_attr;
    /** Changed rate, the library's own value. */
    public int changed_rate;
    /** Remote type, the library's own text. */
    public String remote_type;
    /** Remote serial number. */
    public String remote_serial;
    /** Remote logical device, the library's own text. */
    public String remote_ldev;
}
