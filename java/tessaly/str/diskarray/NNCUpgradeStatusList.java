package tessaly.str.diskarray;

/** Which NAS nodes are being upgraded. */
public class NNCUpgradeStatusList {
    /** 4 elements, one a node. */
    public NNCUpgradeStatus[] nnc_status;
}
