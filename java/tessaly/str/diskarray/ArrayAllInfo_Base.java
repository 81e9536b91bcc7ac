package tessaly.str.diskarray;

/**
 * A slice of what an array tells of itself: the unit, its drives, RAID groups and LUs.
 *
 * <p>Layout assumed.
 */
public class ArrayAllInfo_Base {
    public int valid_index;
    public UnitCondition[] unit_conditions;
    public UnitInformation unit_info;
    public int[] alert;
    public int alert_sa;
    public int[] ctrl_condition;
    public DiskDriveStatusAll diskdrive_status;
    public DiskDriveInformationAll diskdrive_info;
    public int rec_status_valid;
    public DriveReconstructInformation rec_status;
    public RaidGroupInformation raid_info;
    public LogicalUnit[] lu;
    public CommandDevice comdev;
    public DMLUInformation dm_lu;
    public QuickFormatStatusList quickfmtstatus;
    public ParityCorrectionStatusList correctstatus;
    public IntegrationLUInfo2 integration_lu2;
    public int mapping_mode;
    public BatteryConfig battery_config;
    public LocateLEDInformation localled_info;
    public int connectedCTL;
}
