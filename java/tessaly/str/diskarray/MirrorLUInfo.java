package tessaly.str.diskarray;

/**
 * A pair, as its primary logical unit sees it.
 *
 * <p>The light forms of {@link PairInfo} leave some fields 0 or null: {@link
 * DiskArrayUtilityJNI#QV_GetPairInformationLite} and {@link
 * DiskArrayUtilityJNI#QV_GetPairInformationLite2} name what they fill.
 */
public class MirrorLUInfo {
    /** Mirror number, the library's own value. */
    public int mirror_no;
    /** Number of the secondary logical unit. */
    public int lun;
    /** Number of the controller. */
    public int ctl_no;
    /** Pool number. */
    public int pool_no;
    /** State of the pair, the library's own value. */
    public int pair_status;
    /** Detail of the state, the library's own value. */
    public int pair_status_detail;
    /** Used capacity in a single word, in the library's own unit. */
    public int usedcapa;
    /** Used capacity in blocks of 512 bytes, high word. */
    public int usedcapa_h;
    /** Used capacity in blocks of 512 bytes, low word. */
    public int usedcapa_l;
    /** Changed rate, the library's own value; percent over the simulator. */
    public int changed_rate;
    /** Synchronised rate, the library's own value; percent over the simulator. */
    public int synchronized_rate;
    /** When the pair was created. */
    public PairCreateTime time;
    /** When the pair was split. */
    public DateTime split_time;
    /** Message of the pair. */
    public String add_message;
    /** Whether the pair is in a consistency group; 0 is no. */
    public int ctg_valid;
    /** Number of its group. */
    public int ctg_no;
    /** Name of its group. */
    public String ctg_name;
    /** Name of the pair. */
    public String pair_name;
    /** Copy speed, the library's own value. */
    public int copy_speed;
}
