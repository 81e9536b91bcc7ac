package tessaly.str.diskarray;

/** Whether a NAS node is being upgraded. */
public class NNCUpgradeStatus {
    /** State of the upgrade, the library's own value. */
    public int nncUpgradeStatus;
}
