package tessaly.str.diskarray;

/** A slice of what an array tells of itself: program products. Layout assumed. */
public class ArrayAllInfo_PP {
    /** Which members are valid, the library's own value. */
    public int valid_index;
    /** The Turbo LU parameters. */
    public TurboLu turbo_lu;
    /** The array's own users. */
    public QVUserRegist user_reg_info;
    /** The guards of LUs. */
    public LuGuardInformation luguard;
    /** Cache partitions. */
    public CachePartition cache_prt;
    /** The audit log. */
    public QVAuditLogInformation auditlog_info;
    /** The accounts' roles. */
    public QVAccountRoleInformation role;
    /** The accounts. */
    public QVAccountInfoList account;
    /** Options of all accounts. */
    public AccountOption account_option;
    /** Migrations of LUs. */
    public LuMigrationInformation lu_migration;
    /** Power saving by RAID group and by logical unit. */
    public SpinDownUpInformation spin_downup;
    /** Power saving of the unit. */
    public UnitPowerSavingInfo unit_powersaving;
}
