package tessaly.str.diskarray;

/** Errors of the main body. */
public class StatisticalHontai {
    public int pctl_err;
    public int pci_err;
    public int mpu_err;
    public int dctl_err;
    public int bridge_err;
    public int upst;
    public int ac_inbox;
    public int backup_power;
    public int auto_reset;
    public int auto_reboot;
    public int ectl_err;
}
