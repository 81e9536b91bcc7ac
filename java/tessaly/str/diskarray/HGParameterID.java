package tessaly.str.diskarray;

/** The identifiers of the host group parameters. Layout assumed. */
public class HGParameterID {
    public int plat_id_count;
    /** Always 16 elements. */
    public PlatFormID[] platform;
    public int altpath_id_count;
    /** Always 16 elements. */
    public AlternatePathID[] alternatepath;
    public int fail_id_count;
    /** Always 16 elements. */
    public FailOverID[] failover;
    public int special_id_count;
    /** Always 16 elements. */
    public SpecialModeID[] specialmode;
    /** Always 16 elements. */
    public MiddlewareID[] middleware;
}
