package tessaly.str.diskarray;

/** A slice of what an array tells of itself: pools, pairs and remote paths. Layout assumed. */
public class ArrayAllInfo_Replication {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** The pools. */
    public PoolInfo pool_info;
    /** Remote-verify source paths. */
    public RvrfSrcInfo rvrfsrc;
    /** Options of asynchronous Farlink pairs. */
    public FarlinkAsyncOption flaopt_info;
    /** The virtual volumes. */
    public VvolInformation vvol_info;
    /** The consistency groups. */
    public CTGInformation ctg_def;
    /** The pairs, as couplings of logical units. */
    public CouplingInfo lu_coup;
    /** The copy pairs. */
    public PairInfo pair_info;
    /** Farlink pairs. */
    public FarlinkPairInformation farlink_info;
    /** Asynchronous Farlink pairs. */
    public FarlinkAsyncPairInformation flacopy_info;
    /** iSCSI remote paths. */
    public QViSCSIRemotePathInfo iscsi_rmt;
}
