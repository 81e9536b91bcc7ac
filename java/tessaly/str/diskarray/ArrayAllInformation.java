package tessaly.str.diskarray;

/**
 * All that an array tells of itself, in one object.
 *
 * <p>A member is the object that the method named beside it returns. Arrays have these lengths
 * whatever the counts say, an element for every slot, occupied or not.
 */
public class ArrayAllInformation {
    /**
     * The condition of the parts by controller, 2 elements:
     * {@link DiskArrayUtilityJNI#QV_GetUnitCondition}.
     */
    public UnitCondition[] unit_conditions;
    /**
     * The state of the drives in the flat form, 450 elements:
     * {@link DiskArrayUtilityJNI#QV_GetDriveStatus}.
     */
    public DiskDrive[] drive_status;
    /**
     * What the drives are in the flat form, 450 elements:
     * {@link DiskArrayUtilityJNI#QV_GetDriveInformationAll}.
     */
    public DiskDriveInformation[] drive_info;
    /**
     * The RAID groups in the short form, 90 elements: {@link DiskArrayUtilityJNI#QV_GetRaidGroups}.
     */
    public RaidGroup[] raid;
    /** The RAID groups in detail: {@link DiskArrayUtilityJNI#QV_GetRaidGroupInformation}. */
    public RaidGroupInformation raid_info;
    /**
     * Logical units, 4,096 elements of the 8,192 of {@link DiskArrayUtilityJNI#QV_GetLogicalUnit}.
     */
    public LogicalUnit[] lu;
    /** The pairs, as couplings of logical units: {@link DiskArrayUtilityJNI#QV_GetCouplingInfo}. */
    public CouplingInfo lu_coup;
    /** The integrated LUs: {@link DiskArrayUtilityJNI#QV_IntegrationLUInfo}. */
    public IntegrationLUInfo integration_lu;
    /** The integrated LUs, second form: {@link DiskArrayUtilityJNI#QV_IntegrationLUInfo2}. */
    public IntegrationLUInfo2 integration_lu2;
    /** The Turbo LU parameters: {@link DiskArrayUtilityJNI#QV_GetTurboLU}. */
    public TurboLu turbo_lu;
    /** The data-management LUs: {@link DiskArrayUtilityJNI#QV_GetDMLU}. */
    public DMLUInformation dm_lu;
    /**
     * Target identifiers, 2 rows of 2, a row a controller:
     * {@link DiskArrayUtilityJNI#QV_GetTargetId}.
     */
    public TargetId[][] target_id;
    /** The LAN by controller, 2 elements: {@link DiskArrayUtilityJNI#QV_GetLANInformation}. */
    public LANInformation[] lan_info;
    /** The user's LAN: {@link DiskArrayUtilityJNI#QV_GetQVUserLANInformation}. */
    public QVUserLANInformation qvuser_lan_info;
    /** Synchronisation by controller, 2 elements: {@link DiskArrayUtilityJNI#QV_GetSyncControl}. */
    public SyncControl[] sync_ctrl;
    /** How drives are restored: {@link DiskArrayUtilityJNI#QV_GetDiskDriveRestoration}. */
    public DiskDriveRestoration rest_info;
    /** Prefetching. */
    public PrefetchInformation prefetch_info;
    /** Online verify. */
    public OnlineVerify verify;
    /**
     * The fibre ports by controller, 2 elements:
     * {@link DiskArrayUtilityJNI#QV_GetFibreInformation}.
     */
    public FibreInformation[] fibre_info;
    /** The array's own users: {@link DiskArrayUtilityJNI#QV_GetUserInformation}. */
    public QVUserRegist user_reg_info;
    /** The command devices: {@link DiskArrayUtilityJNI#QV_GetCommandDevice}. */
    public CommandDevice comdev;
    /** Parameters of the LU wizard, 2 elements. */
    public NowWZParameter[] on_opt;
    /** Remote-verify source paths: {@link DiskArrayUtilityJNI#QV_GetRvrfSrcPath}. */
    public RvrfSrcInfo rvrfsrc;
    /** The unit: {@link DiskArrayUtilityJNI#QV_GetUnitInformation}. */
    public UnitInformation unit_info;
    /** Alert flags, 2 elements: the library's own values. */
    public int[] alert;
    /** The host groups: {@link DiskArrayUtilityJNI#QV_GetHGList}. */
    public HGList hg;
    /** Their options: {@link DiskArrayUtilityJNI#QV_GetHGOptionAll}. */
    public HGOption hgopt;
    /** The ports' options: {@link DiskArrayUtilityJNI#QV_GetPortOption}. */
    public PortOption portopt;
    /** The LU mapping: {@link DiskArrayUtilityJNI#QV_GetLuMappingListAll}. */
    public LuMapping lumap;
    /** The hosts' WWNs: {@link DiskArrayUtilityJNI#QV_GetWWNInformation}. */
    public WWNInformation wwn;
    /** The hosts' WWNs by host group: {@link DiskArrayUtilityJNI#QV_GetWWNHGInformation}. */
    public WWNHGInformation wwnhg;
    /** Boot options. */
    public BootOption boot_opt;
    /** Online system parameters. */
    public OnlineSystemParam on_sysparam;
    /** The LAN's port numbers: {@link DiskArrayUtilityJNI#QV_GetLANPortNumber}. */
    public LANPortNumber port_num;
    /** Online tuning parameters. */
    public OnlineTuningParam on_tuning;
    /** Tuning parameters. */
    public TuningParam tuning;
    /** Tuning of prefetching. */
    public PrefetchTuning pre_tuning;
    /** The pools: {@link DiskArrayUtilityJNI#QV_GetPoolInformation}. */
    public PoolInfo pool_info;
    /**
     * The copy pairs: {@link DiskArrayUtilityJNI#QV_GetPairInformation}, in the light form
     * {@link DiskArrayUtilityJNI#QV_GetPairInformationLite2}.
     */
    public PairInfo pair_info;
    /** The guards of LUs: {@link DiskArrayUtilityJNI#QV_GetLuGuardInformation}. */
    public LuGuardInformation luguard;
    /** Options of the quick format: {@link DiskArrayUtilityJNI#QV_GetQuickFormatOption}. */
    public QuickFormatOption quickfmtopt;
    /** How far quick formats have come: {@link DiskArrayUtilityJNI#QV_GetQuickFormatStatusList}. */
    public QuickFormatStatusList quickfmtstatus;
    /** Parameters of host groups: {@link DiskArrayUtilityJNI#QV_GetHGParameterList}. */
    public HGParameterList hgparamlist;
    /** Parity corrections: {@link DiskArrayUtilityJNI#QV_GetParityCorrectionStatusList}. */
    public ParityCorrectionStatusList correctstatus;
    /** Zencopy: {@link DiskArrayUtilityJNI#QV_GetZencopyInformation}. */
    public ZencopyInformation zencopy;
    /** The guards of the mapping: {@link DiskArrayUtilityJNI#QV_GetMappingGuardList}. */
    public MappingGuardList mapguard;
    /** The unit's identifiers: {@link DiskArrayUtilityJNI#QV_GetUnitIdentifier}. */
    public UnitIdentifier unit_identifier;
    /** Farlink pairs: {@link DiskArrayUtilityJNI#QV_GetFarlinkPairInformation}. */
    public FarlinkPairInformation farlink_info;
    /**
     * Asynchronous Farlink pairs: {@link DiskArrayUtilityJNI#QV_GetFarlinkAsyncPairInformation}.
     */
    public FarlinkAsyncPairInformation flacopy_info;
    /**
     * Options of asynchronous Farlink pairs: {@link DiskArrayUtilityJNI#QV_GetFarlinkAsyncOption}.
     */
    public FarlinkAsyncOption flaopt_info;
    /** Cache partitions. */
    public CachePartition cache_prt;
    /** Time zones. */
    public TimeZoneList timezonelist;
    /** The clock's settings: {@link DiskArrayUtilityJNI#QV_GetTimeInfo}. */
    public TimeInfo timeinfo;
    /** System LUs of the NAS. */
    public NASSystemLUAll systemluall;
    /** User LUs of the NAS. */
    public NASUserLUAll userluall;
    /** The LAN for maintenance: {@link DiskArrayUtilityJNI#QV_GetMainteLanInfo}. */
    public MainteLanInfo maintelaninfo;
    /** Addresses for maintenance: {@link DiskArrayUtilityJNI#QV_GetMainteLanAvailableList}. */
    public MainteLanAvailableList mainte_avail;
    /**
     * The LAN of the network node controllers: {@link DiskArrayUtilityJNI#QV_GetNNCLANInformation}.
     */
    public NNCLANInformation nnclaninfo;
    /** States of the NAS operating system. */
    public NASOSStatusList nasosstatus;
    /** The iSCSI ports: {@link DiskArrayUtilityJNI#QV_GetiSCSIPortInformation}. */
    public QViSCSIPortInformation iscsi_port;
    /** Their targets: {@link DiskArrayUtilityJNI#QV_GetiSCSITargetInformationAll}. */
    public QViSCSITargetInformationAll iscsi_target;
    /** Their initiators: {@link DiskArrayUtilityJNI#QV_GetiSCSIInitiatorInformationAll}. */
    public QViSCSIInitiatorInformationAll iscsi_initiator;
    /**
     * Initiators that are logged in:
     * {@link DiskArrayUtilityJNI#QV_GetiSCSILoginInitiatorInformationAll}.
     */
    public QViSCSILoginInitiatorInformationAll iscsi_logininitiator;
    /** Their CHAP users: {@link DiskArrayUtilityJNI#QV_GetiSCSICHAPUserInformationAll}. */
    public QViSCSICHAPUserInformationAll chap_user;
    /** Their iSNS servers: {@link DiskArrayUtilityJNI#QV_GetiSNSInformation}. */
    public QViSNSInformation isns;
    /** Diagnosis of response times: {@link DiskArrayUtilityJNI#QV_GetDriveResponseDiag}. */
    public DriveResponseDiag drive_response_diag;
    /** The audit log: {@link DiskArrayUtilityJNI#QV_GetQVAuditLogInformation}. */
    public QVAuditLogInformation auditlog_info;
    /** Migrations of LUs: {@link DiskArrayUtilityJNI#QV_GetLuMigrationInformation}. */
    public LuMigrationInformation lu_migration;
    /** The accounts' roles: {@link DiskArrayUtilityJNI#QV_GetQVAccountRoleInformation}. */
    public QVAccountRoleInformation role;
    /** The accounts: {@link DiskArrayUtilityJNI#QV_GetAccountInformation}. */
    public QVAccountInfoList account;
    /** Options of all accounts: {@link DiskArrayUtilityJNI#QV_GetAccountOption}. */
    public AccountOption account_option;
    /** Power saving: {@link DiskArrayUtilityJNI#QV_GetSpinDownUpInformation}. */
    public SpinDownUpInformation spin_downup;
    /** The library's own value. */
    public int cfg;
    /** The controllers' conditions, 2 elements: the library's own codes. */
    public int[] ctrl_condition;
    /** Number of the last logical unit: {@link DiskArrayUtilityJNI#QV_GetLastLogicalUnit}. */
    public int last_lu;
}
