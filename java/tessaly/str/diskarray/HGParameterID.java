package tessaly.str.diskarray;

/** The identifiers of the host group parameters. Layout assumed. */
public class HGParameterID {
    /** Number of platforms; <code>platform</code> has its full length all the same. */
    public int plat_id_count;
    /** Always 16 elements. */
    public PlatFormID[] platform;
    /** Number of alternate paths; <code>alternatepath</code> has its full length all the same. */
    public int altpath_id_count;
    /** Always 16 elements. */
    public AlternatePathID[] alternatepath;
    /** Number of failovers; <code>failover</code> has its full length all the same. */
    public int fail_id_count;
    /** Always 16 elements. */
    public FailOverID[] failover;
    /** Number of special modes; <code>specialmode</code> has its full length all the same. */
    public int special_id_count;
    /** Always 16 elements. */
    public SpecialModeID[] specialmode;
    /** Always 16 elements. */
    public MiddlewareID[] middleware;
}
