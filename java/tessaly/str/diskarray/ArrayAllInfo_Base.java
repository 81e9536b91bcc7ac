package tessaly.str.diskarray;

/**
 * A slice of what an array tells of itself: the unit, its drives, RAID groups and LUs.
 *
 * <p>Arrays have an element for every slot, occupied or not.
 *
 * <p>Layout assumed.
 */
public class ArrayAllInfo_Base {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** The condition of the parts by controller, 2 elements. */
    public UnitCondition[] unit_conditions;
    /** The unit. */
    public UnitInformation unit_info;
    /** Alert flags, 2 elements: the library's own values. */
    public int[] alert;
    /** Further alert flag, the library's own value. */
    public int alert_sa;
    /** The controllers' conditions, 2 elements: the library's own codes. */
    public int[] ctrl_condition;
    /** The state of the drives, by enclosure. */
    public DiskDriveStatusAll diskdrive_status;
    /** What the drives are, by enclosure. */
    public DiskDriveInformationAll diskdrive_info;
    /** Whether <code>rec_status</code> is valid, the library's own value. */
    public int rec_status_valid;
    /** How far the reconstruction of a drive has come. */
    public DriveReconstructInformation rec_status;
    /** The RAID groups in detail. */
    public RaidGroupInformation raid_info;
    /** The logical units, 8,192 elements. */
    public LogicalUnit[] lu;
    /** The command devices. */
    public CommandDevice comdev;
    /** The data-management LUs. */
    public DMLUInformation dm_lu;
    /** How far quick formats have come. */
    public QuickFormatStatusList quickfmtstatus;
    /** How far parity corrections have come. */
    public ParityCorrectionStatusList correctstatus;
    /** The integrated LUs. */
    public IntegrationLUInfo2 integration_lu2;
    /** Mapping mode, the library's own value. */
    public int mapping_mode;
    /** The batteries. */
    public BatteryConfig battery_config;
    /** Which locate LEDs are lit. */
    public LocateLEDInformation localled_info;
    /**
     * The controller that is connected, the library's own value; over the simulator the request's
     * <code>requestCTL</code>.
     */
    public int connectedCTL;
}
