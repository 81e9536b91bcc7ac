package tessaly.str.diskarray;

/** The target IDs of a controller, in the WZ form. Layout assumed. */
public class WZTargetId {
    /** Control flag, the library's own value. */
    public int ctrl_flag;
    /** Mode of the target IDs, the library's own value. */
    public int target_id_mode;
    /** How the target IDs are configured. */
    public WZTargetConfig target_config;
}
