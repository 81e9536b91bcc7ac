package tessaly.str.diskarray;

/** How SATA drives are maintained. */
public class SATADriveInformation {
    public SweepInfo sweep_info;
    public DriveFlashInfo flash_info;
    public SmartInfo smart_info;
}
