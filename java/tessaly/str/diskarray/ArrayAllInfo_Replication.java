package tessaly.str.diskarray;

/** A slice of what an array tells of itself: pools, pairs and remote paths. Layout assumed. */
public class ArrayAllInfo_Replication {
    public int valid_index;
    public PoolInfo pool_info;
    public RvrfSrcInfo rvrfsrc;
    public FarlinkAsyncOption flaopt_info;
    public VvolInformation vvol_info;
    public CTGInformation ctg_def;
    public CouplingInfo lu_coup;
    public PairInfo pair_info;
    public FarlinkPairInformation farlink_info;
    public FarlinkAsyncPairInformation flacopy_info;
    public QViSCSIRemotePathInfo iscsi_rmt;
}
