package tessaly.str.diskarray;

/** A slice of what an array tells of itself: program products. Layout assumed. */
public class ArrayAllInfo_PP {
    public int valid_index;
    public TurboLu turbo_lu;
    public QVUserRegist user_reg_info;
    public LuGuardInformation luguard;
    public CachePartition cache_prt;
    public QVAuditLogInformation auditlog_info;
    public QVAccountRoleInformation role;
    public QVAccountInfoList account;
    public AccountOption account_option;
    public LuMigrationInformation lu_migration;
    public SpinDownUpInformation spin_downup;
    public UnitPowerSavingInfo unit_powersaving;
}
