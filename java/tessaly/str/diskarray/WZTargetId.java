package tessaly.str.diskarray;

/** The target IDs of a controller, in the WZ form. Layout assumed. */
public class WZTargetId {
    public int ctrl_flag;
    public int target_id_mode;
    public WZTargetConfig target_config;
}
