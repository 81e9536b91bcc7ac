package tessaly.str.diskarray;

/** Which NAS nodes are being upgraded. */
public class NNCUpgradeStatusList {
    /** 4 elements. */
    public NNCUpgradeStatus[] nnc_status;
}
