package tessaly.str.diskarray;

/**
 * The calls of the array library.
 *
 * <p>A unit is named by the name that it was registered under; a null name throws code 258. Every
 * method throws {@link DiskArrayException} with the library's code where the library refuses, and
 * {@link OutOfMemoryError} where there is no native memory for its records. Any thread may call.
 */
public class DiskArrayUtilityJNI {
    static {
        System.loadLibrary("quorvelj");
    }

    // Unit registration

    /** Registers a unit under <code>param.unit_name</code>. */
    public native void QV_UnitAdd(QVUnitParam param) throws DiskArrayException;

    /** Registers a unit by its address. */
    public native void QV_UnitAddByIP(QVUnitParam param) throws DiskArrayException;

    /** Changes a registered unit. */
    public native void QV_UnitChange(String unit, QVUnitParam param) throws DiskArrayException;

    /** Changes a registered unit by its address. */
    public native void QV_UnitChangeByIP(String unit, QVUnitParam param) throws DiskArrayException;

    /** Takes a unit from the list. */
    public native void QV_UnitDelete(String unit) throws DiskArrayException;

    /** Returns a registered unit. */
    public native QVUnitParam QV_GetUnitParam(String unit) throws DiskArrayException;

    /** Returns the number of registered units. */
    public native int QV_GetUnitCount() throws DiskArrayException;

    /**
     * Returns the first <code>count</code> registered units, or null where there is no memory for
     * as many. The elements from one that could not be built on are null.
     */
    public native QVUnitParam[] QV_GetUnitParamTable(int count) throws DiskArrayException;

    /** Looks for a unit on the network. */
    public native DiscoverUnit QV_DiscoverUnitInformation(DiscoverUnitRequest request)
            throws DiskArrayException;

    /** Looks for a unit on the network, in the extended form. */
    public native DiscoverUnit QV_DiscoverUnitInformationEx(DiscoverUnitRequest request)
            throws DiskArrayException;

    /** Attaches additional units to a registered one. */
    public native void QV_AddAdditionalUnit(
            String unit, QVSessionInfo session, AdditionalUnitRequest request)
            throws DiskArrayException;

    /** Returns the additional units of a registered one. */
    public native AdditionalUnitInformation QV_GetAdditionalUnitInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    // Unit login, session and array users

    // Unit condition

    // All-information bundles

    // Drives and parts

    // Performance collection and output

    // Statistical information

    // RAID groups

    /**
     * Returns the RAID groups in the short form, always 90 elements. The elements from one that
     * could not be built on are null.
     */
    public native RaidGroup[] QV_GetRaidGroups(String unit) throws DiskArrayException;

    /** Adds a RAID group. */
    public native void QV_RaidGroupAdd(String unit, RaidGroup group) throws DiskArrayException;

    /** Expands a RAID group. */
    public native void QV_RaidGroupExpand(String unit, RaidGroup group) throws DiskArrayException;

    /** Deletes a RAID group. */
    public native void QV_RaidGroupDelete(String unit, QVSessionInfo session, int rgnum)
            throws DiskArrayException;

    /** Deletes all RAID groups. */
    public native void QV_RaidGroupAllDelete(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Creates a RAID group of chosen drives. */
    public native void QV_CreateRaidGroup(
            String unit, QVSessionInfo session, CreateRaidGroup request) throws DiskArrayException;

    /** Returns the RAID groups with their drives. */
    public native RaidGroupInformation QV_GetRaidGroupInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the areas of a RAID group. */
    public native RGAreaInformation QV_GetRGAreaInformation(
            String unit, QVSessionInfo session, int rgnum) throws DiskArrayException;

    /** Returns what a RAID group would be, without creating it. */
    public native RgDetail QV_GetRaidGroupCreationCapacity(
            String unit, QVSessionInfo session, CreateRaidGroup request) throws DiskArrayException;

    // Logical units and formatting

    /**
     * Returns the LUs, always 8,192 elements. The elements from one that could not be built on are
     * null.
     */
    public native LogicalUnit[] QV_GetLogicalUnit(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns one LU. */
    public native LogicalUnit QV_GetLogicalUnit1(String unit, QVSessionInfo session, int lun)
            throws DiskArrayException;

    /** Returns the number of the last LU. */
    public native int QV_GetLastLogicalUnit(String unit) throws DiskArrayException;

    /** Creates an LU. */
    public native void QV_CreateLogicalUnit(
            String unit, QVSessionInfo session, LogicalUnitCreationRequest request)
            throws DiskArrayException;

    /** Adds an LU. */
    public native void QV_LogicalUnitAdd(String unit, QVSessionInfo session, LogicalUnit record)
            throws DiskArrayException;

    /** Deletes an LU; the library chooses which. */
    public native void QV_LogicalUnitDelete(String unit) throws DiskArrayException;

    /** Deletes all LUs. */
    public native void QV_LogicalUnitDeleteAll(String unit) throws DiskArrayException;

    /** Deletes an LU. */
    public native void QV_LogicalUnitDeleteByLUN(String unit, QVSessionInfo session, int lun)
            throws DiskArrayException;

    /** Expands an LU. */
    public native void QV_LogicalUnitExpand(String unit, int first, int second)
            throws DiskArrayException;

    /** Changes the staging of an LU. */
    public native void QV_LogicalUnitChangeStaging(
            String unit, QVSessionInfo session, int first, int second) throws DiskArrayException;

    /** Changes the controller of an LU. */
    public native void QV_LogicalUnitChangeCtl(String unit, QVSessionInfo session, int value)
            throws DiskArrayException;

    /** Invalidates an LU. */
    public native void QV_LogicalUnitInvalid(String unit, int lun) throws DiskArrayException;

    /** Restores an LU that was invalidated. */
    public native void QV_LogicalUnitRestore(String unit, int lun) throws DiskArrayException;

    /** Moves and resizes an LU. */
    public native void QV_LogicalUnitRealloc(String unit, LogicalUnitReallocationRequest request)
            throws DiskArrayException;

    /** Starts to format an LU. */
    public native void QV_LogicalUnitFormat(String unit, int first, int second)
            throws DiskArrayException;

    /** Returns how far the formatting of an LU is. */
    public native int QV_LogicalUnitFormatStatus(String unit, int lun) throws DiskArrayException;

    /** Has the controller format an LU at once. */
    public native int QV_LogicalUnitFormatImmediateCTL(String unit, int first, int second)
            throws DiskArrayException;

    /** Returns how far the formatting of each LU is. A null name is taken as an empty one. */
    public native LuFormatStatusList QV_LogicalUnitFormatStatusList(String unit)
            throws DiskArrayException;

    /** Enters LUs for formatting. */
    public native void QV_EntryFormatList(String unit, FormatEntryList list)
            throws DiskArrayException;

    /** Returns how far the LUs that were entered for formatting are. */
    public native FormatStatusList QV_GetFormatStatusList(String unit) throws DiskArrayException;

    /** Returns how quick formats are run. */
    public native QuickFormatOption QV_GetQuickFormatOption(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets how quick formats are run. */
    public native void QV_SetQuickFormatOption(
            String unit, QVSessionInfo session, QuickFormatOption option) throws DiskArrayException;

    /** Enters LUs for a quick format. */
    public native void QV_EntryQuickFormatList(
            String unit, QVSessionInfo session, QuickFormatEntryList list)
            throws DiskArrayException;

    /** Returns how far the quick formats are. */
    public native QuickFormatStatusList QV_GetQuickFormatStatusList(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Enters LUs for a correction of their parity. */
    public native void QV_EntryParityCorrectionList(
            String unit, QVSessionInfo session, ParityCorrectionRequest request)
            throws DiskArrayException;

    /** Returns how far the parity corrections are. */
    public native ParityCorrectionStatusList QV_GetParityCorrectionStatusList(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the controllers that own the LUs. */
    public native LuOwnership QV_GetLuOwnership(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the controller that owns an LU. */
    public native void QV_SetLuOwnership(String unit, QVSessionInfo session, LuOwnershipInfo info)
            throws DiskArrayException;

    // Pools, virtual volumes and special LUs

    /** Returns the pools. */
    public native PoolInfo QV_GetPoolInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Changes the settings of a pool. */
    public native void QV_ChangePoolInformation(
            String unit, QVSessionInfo session, PoolChangeRequest request)
            throws DiskArrayException;

    /** Adds an LU to a pool. */
    public native void QV_PoolLUAdd(
            String unit, QVSessionInfo session, int first, int second, int third)
            throws DiskArrayException;

    /** Adds several LUs to a pool. */
    public native void QV_PoolLUAddList(
            String unit, QVSessionInfo session, int controller, int pool, PoolLUListRequest list)
            throws DiskArrayException;

    /** Takes all LUs from a pool. */
    public native void QV_PoolLUAllDelete(String unit, QVSessionInfo session, int first, int second)
            throws DiskArrayException;

    /** Creates a virtual volume. */
    public native void QV_CreateVVOL(
            String unit, QVSessionInfo session, int first, int second, int third)
            throws DiskArrayException;

    /** Creates a virtual volume of a given capacity. */
    public native void QV_CreateVVOLEx(
            String unit, QVSessionInfo session, VvolDetailInformation volume)
            throws DiskArrayException;

    /** Deletes a virtual volume. */
    public native void QV_DeleteVVOL(String unit, QVSessionInfo session, int first, int second)
            throws DiskArrayException;

    /** Returns the virtual volumes. */
    public native VvolInformation QV_GetVVOLInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the integrated LUs. */
    public native IntegrationLUInfo QV_IntegrationLUInfo(String unit) throws DiskArrayException;

    /** Returns the integrated LUs, in the second form. */
    public native IntegrationLUInfo2 QV_IntegrationLUInfo2(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Integrates or separates LUs. */
    public native void QV_SetIntegrationLU(
            String unit, QVSessionInfo session, IntegrationRequest request)
            throws DiskArrayException;

    /** Returns the data-management LUs. */
    public native DMLUInformation QV_GetDMLU(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the data-management LUs. */
    public native void QV_SetDMLU(String unit, QVSessionInfo session, DMLUInformation information)
            throws DiskArrayException;

    /** Returns the guard of each LU. */
    public native LuGuardInformation QV_GetLuGuardInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the access level of an LU. */
    public native void QV_SetLuAccessLevel(
            String unit, QVSessionInfo session, LuAccessLevelRequest request)
            throws DiskArrayException;

    /** Sets the S-VOL disable mode of an LU. */
    public native void QV_SetSvolDisableMode(
            String unit, QVSessionInfo session, int first, int second) throws DiskArrayException;

    /** Extends the retention term of an LU. */
    public native void QV_ExtendRetentionTerm(
            String unit, QVSessionInfo session, int first, int second) throws DiskArrayException;

    /** Sets the expiration lock. */
    public native void QV_SetExpirationLock(String unit, QVSessionInfo session, int value)
            throws DiskArrayException;

    // Host groups and LU mapping

    // iSCSI targets and ports

    // Fibre ports and LAN settings

    // Copy pairs

    // Remote paths and consistency groups

    // Volume migration

    // Firmware download and replacement

    // Account authentication

    /** Logs in with an account of the array. */
    public native QVSessionInfo QV_LoginQVAccount(String unit, LoginRequest request)
            throws DiskArrayException;

    /** Logs in for the alert check. */
    public native QVSessionInfo QV_LoginQVAccountAlertCheck(String unit, int option)
            throws DiskArrayException;

    /** Ends a session. */
    public native void QV_LogoutQVAccount(String unit, QVSessionInfo session, LogoutOption option)
            throws DiskArrayException;

    /** Ends a session of the alert check. */
    public native void QV_LogoutQVAccountAlertCheck(
            String unit, QVSessionInfo session, LogoutOption option) throws DiskArrayException;

    /** Ends all sessions of an account. */
    public native void QV_ForcedLogoutQVAccount(
            String unit, QVSessionInfo session, AccountIdentifier account)
            throws DiskArrayException;

    /** Deletes an account. */
    public native void QV_DeleteAccount(
            String unit, QVSessionInfo session, AccountIdentifier account)
            throws DiskArrayException;

    /** Creates an account. */
    public native void QV_CreateAccount(String unit, QVSessionInfo session, Account account)
            throws DiskArrayException;

    /** Changes an account. */
    public native void QV_ChangeAccount(String unit, QVSessionInfo session, Account account)
            throws DiskArrayException;

    /** Changes the password of the session's own user. */
    public native void QV_ChangeOwnUserPassword(
            String unit, QVSessionInfo session, OwnPasswordChange change)
            throws DiskArrayException;

    /** Returns the settings for all accounts. */
    public native AccountOption QV_GetAccountOption(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the settings for all accounts. */
    public native void QV_SetAccountOption(
            String unit, QVSessionInfo session, AccountOption option) throws DiskArrayException;

    /** Returns the roles that accounts may have. */
    public native QVAccountRoleInformation QV_GetQVAccountRoleInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the accounts. */
    public native QVAccountInfoList QV_GetAccountInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns what the session's own user may do. */
    public native OwnUserPermission QV_GetOwnUserPermission(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the warning that is shown before a login. */
    public native AccountBanner QV_GetAccountBanner(String unit) throws DiskArrayException;

    /** Returns the warning that is shown before a login, to a user who is logged in. */
    public native AccountBanner QV_GetAccountBannerAuth(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the warning that is shown before a login. */
    public native void QV_SetAccountBannerAuth(
            String unit, QVSessionInfo session, AccountBanner banner) throws DiskArrayException;

    // Audit log

    // Alert check and e-mail alerts

    // SNMP configuration
}
