package tessaly.str.diskarray;

/** The target IDs of a controller. Layout assumed. */
public class TargetId {
    /** Control flag, the library's own value. */
    public int ctrl_flag;
    /** Mode of the target IDs, the library's own value. */
    public int target_id_mode;
    /**
     * How the target IDs are configured; not null where it is handed over. Null in a new object.
     */
    public TargetConfig target_config;
}
