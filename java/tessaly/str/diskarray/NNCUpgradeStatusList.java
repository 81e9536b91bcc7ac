package tessaly.str.diskarray;

/** The upgrade status of the network node controllers. */
public class NNCUpgradeStatusList {
    /** 4 elements, one for each network node controller. */
    public NNCUpgradeStatus[] nnc_status;
}
