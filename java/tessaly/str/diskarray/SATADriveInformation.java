package tessaly.str.diskarray;

/**
 * How SATA drives are maintained.
 *
 * <p>A new object has null for all three. As an argument it needs them: a null one ends the
 * reading, and it and those behind it reach the library as they lay in memory.
 */
public class SATADriveInformation {
    /** Sweeping. */
    public SweepInfo sweep_info;
    /** Flash settings. */
    public DriveFlashInfo flash_info;
    /** Self-diagnosis. */
    public SmartInfo smart_info;
}
