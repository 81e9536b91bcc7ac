package tessaly.str.diskarray;

/** Errors of the main body. The kinds are the library's own. */
public class StatisticalHontai {
    /** Errors of the kind "pctl". */
    public int pctl_err;
    /** Errors of the kind "pci". */
    public int pci_err;
    /** Errors of the kind "mpu". */
    public int mpu_err;
    /** Errors of the kind "dctl". */
    public int dctl_err;
    /** Errors of the kind "bridge". */
    public int bridge_err;
    /** Counter of the kind "upst". */
    public int upst;
    /** Counter of the kind "ac_inbox". */
    public int ac_inbox;
    /** Counter of the backup power. */
    public int backup_power;
    /** Automatic resets. */
    public int auto_reset;
    /** Automatic restarts. */
    public int auto_reboot;
    /** Errors of the kind "ectl". */
    public int ectl_err;
}
