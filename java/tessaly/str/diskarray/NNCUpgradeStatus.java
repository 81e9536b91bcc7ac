package tessaly.str.diskarray;

/** The upgrade status of a network node controller. */
public class NNCUpgradeStatus {
    /** Status of the upgrade, the library's own value. */
    public int nncUpgradeStatus;
}
