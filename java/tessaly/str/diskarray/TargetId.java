package tessaly.str.diskarray;

/** The target IDs of a controller. Layout assumed. */
public class TargetId {
    public int ctrl_flag;
    public int target_id_mode;
    public TargetConfig target_config;
}
