package tessaly.str.diskarray;

/** The options of a host group. Layout assumed. */
public class HGOptionInfo {
    /** Options, the library's own value. */
    public int option;
    /** More options, the library's own value. */
    public int option2;
    /** More options, the library's own value. */
    public int option3;
    /** Platform of the hosts, the library's own value. */
    public int platform_id;
    /** Alternate path, the library's own value. */
    public int alternate_path_id;
    /** Failover, the library's own value. */
    public int failover_id;
    /** Special mode, the library's own value. */
    public int special_mode_id;
    /** Middleware of the hosts, the library's own value. */
    public int middleware_id;
}
