package tessaly.str.diskarray;

/** Whether a NAS node is being upgraded. */
public class NNCUpgradeStatus {
    public int nncUpgradeStatus;
}
