package tessaly.str.diskarray;

/** The options of a host group. Layout assumed. */
public class HGOptionInfo {
    public int option;
    public int option2;
    public int option3;
    public int platform_id;
    public int alternate_path_id;
    public int failover_id;
    public int special_mode_id;
    public int middleware_id;
}
