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

    // Logical units and formatting

    // Pools, virtual volumes and special LUs

    // Host groups and LU mapping

    // iSCSI targets and ports

    // Fibre ports and LAN settings

    // Copy pairs

    /** Creates a Gemlyn pair. */
    public native void QV_CreateGemlynPair(
            String unit, QVSessionInfo session, CreateGemlynPair spec) throws DiskArrayException;

    /** Splits Gemlyn pairs. */
    public native void QV_SplitGemlynPair(String unit, QVSessionInfo session, SplitGemlynPair spec)
            throws DiskArrayException;

    /** Dissolves Gemlyn pairs. */
    public native void QV_SimpleGemlynPair(String unit, QVSessionInfo session, PairOperation spec)
            throws DiskArrayException;

    /** Copies the changes since the split of Gemlyn pairs to their secondary side. */
    public native void QV_ResyncGemlynPair(String unit, QVSessionInfo session, PairOperation spec)
            throws DiskArrayException;

    /** Copies the secondary side of Gemlyn pairs back. */
    public native void QV_RestoreGemlynPair(String unit, QVSessionInfo session, PairOperation spec)
            throws DiskArrayException;

    /** Creates a SnapShot pair. */
    public native void QV_CreateSnapShotPair(
            String unit, QVSessionInfo session, CreateSnapShotPair spec) throws DiskArrayException;

    /** Splits SnapShot pairs. */
    public native void QV_SplitSnapShotPair(
            String unit, QVSessionInfo session, SplitSnapShotPair spec) throws DiskArrayException;

    /** Dissolves SnapShot pairs. */
    public native void QV_SimpleSnapShotPair(String unit, QVSessionInfo session, PairOperation spec)
            throws DiskArrayException;

    /** Copies the changes since the split of SnapShot pairs to their secondary side. */
    public native void QV_ResyncSnapShotPair(String unit, QVSessionInfo session, PairOperation spec)
            throws DiskArrayException;

    /** Copies the secondary side of SnapShot pairs back. */
    public native void QV_RestoreSnapShotPair(
            String unit, QVSessionInfo session, PairOperation spec) throws DiskArrayException;

    /** Creates a Farlink pair. */
    public native void QV_CreateFarlinkPair(
            String unit, QVSessionInfo session, CreateFarlinkPair spec) throws DiskArrayException;

    /** Splits Farlink pairs. */
    public native void QV_SplitFarlinkPair(
            String unit, QVSessionInfo session, SplitFarlinkPair spec) throws DiskArrayException;

    /** Dissolves Farlink pairs. */
    public native void QV_SimpleFarlinkPair(
            String unit, QVSessionInfo session, SimpleRemotePair spec) throws DiskArrayException;

    /** Copies the changes since the split of Farlink pairs to the other array. */
    public native void QV_ResyncFarlinkPair(
            String unit, QVSessionInfo session, RemotePairOperation spec) throws DiskArrayException;

    /** Makes the secondary side of Farlink pairs the primary one. */
    public native void QV_SwapFarlinkPair(
            String unit, QVSessionInfo session, RemotePairOperation spec) throws DiskArrayException;

    /** Creates a Longlink pair. */
    public native void QV_CreateLonglinkPair(
            String unit, QVSessionInfo session, CreateLonglinkPair spec) throws DiskArrayException;

    /** Splits Longlink pairs. */
    public native void QV_SplitLonglinkPair(
            String unit, QVSessionInfo session, SplitLonglinkPair spec) throws DiskArrayException;

    /** Dissolves Longlink pairs. */
    public native void QV_SimpleLonglinkPair(
            String unit, QVSessionInfo session, SimpleRemotePair spec) throws DiskArrayException;

    /** Copies the changes since the split of Longlink pairs to the other array. */
    public native void QV_ResyncLonglinkPair(
            String unit, QVSessionInfo session, RemotePairOperation spec) throws DiskArrayException;

    /** Makes the secondary side of Longlink pairs the primary one. */
    public native void QV_SwapLonglinkPair(
            String unit, QVSessionInfo session, RemotePairOperation spec) throws DiskArrayException;

    /** Changes the attributes of a pair. */
    public native void QV_ChangeReplicationPair(
            String unit, QVSessionInfo session, PairChange change) throws DiskArrayException;

    /** Changes the pace of migrations of logical units. */
    public native void QV_ChangeCopyPace(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /** Returns the pairs inside the array: 4,094 logical units of 32 pairs, used or not. */
    public native PairInfo QV_GetPairInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the same with the state and the names of the pairs only. */
    public native PairInfo QV_GetPairInformationLite(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the same with the capacities only, of 2,046 logical units. */
    public native PairInfo QV_GetPairInformationLite2(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns which logical units are paired inside the array. */
    public native PairInfoSimple QV_GetPairInformationSimple(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the Farlink pairs. */
    public native FarlinkPairInformation QV_GetFarlinkPairInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the asynchronous pairs and their consistency groups. */
    public native FarlinkAsyncPairInformation QV_GetFarlinkAsyncPairInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the settings of asynchronous pairs. */
    public native FarlinkAsyncOption QV_GetFarlinkAsyncOption(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the settings of asynchronous pairs. */
    public native void QV_SetFarlinkAsyncOption(
            String unit, QVSessionInfo session, FarlinkAsyncOption option)
            throws DiskArrayException;

    /** Returns the pairs with arrays of another family. */
    public native ZencopyInformation QV_GetZencopyInformation(String unit)
            throws DiskArrayException;

    /** Splits a pair with an array of another family. */
    public native void QV_SplitZencopyPair(String unit, int pair) throws DiskArrayException;

    // Remote paths and consistency groups

    /** Returns the consistency groups, 256 inside the array and 256 of remote pairs. */
    public native CTGInformation QV_GetCTGInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Changes the attributes of a consistency group. */
    public native void QV_ChangeReplicationCTG(String unit, QVSessionInfo session, CTGInfo change)
            throws DiskArrayException;

    /** Returns the array at the other end of remote pairs. */
    public native RemoteDeviceInformation QV_GetRemoteDeviceInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Sets the array at the other end of remote pairs. */
    public native void QV_SetRemoteDeviceInformation(
            String unit, QVSessionInfo session, RemoteDeviceInformation device)
            throws DiskArrayException;

    /** Returns the arrays at the other ends of remote pairs. */
    public native RemoteDeviceInformationEx QV_GetRemoteDeviceInformationEx(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Sets the arrays at the other ends of remote pairs. */
    public native void QV_SetRemoteDeviceInformationEx(
            String unit, QVSessionInfo session, RemoteDeviceInformationEx devices)
            throws DiskArrayException;

    /** Deletes the remote paths to other arrays. */
    public native void QV_DelRemotePath(
            String unit, QVSessionInfo session, RemotePathDeletion deletion)
            throws DiskArrayException;

    /** Sets up a remote path anew. */
    public native void QV_ReconstructRemotePath(
            String unit, QVSessionInfo session, RemotePathRebuild rebuild)
            throws DiskArrayException;

    /** Returns the remote paths. */
    public native RvrfSrcInfo QV_GetRvrfSrcPath(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the remote paths to another array. */
    public native void QV_SetRvrfSrcPath(String unit, QVSessionInfo session, RvrfSrcArrayUnit paths)
            throws DiskArrayException;

    /** Deletes all remote paths. */
    public native void QV_DelRvrfSrcPath(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the logical units through which hosts give commands. */
    public native CommandDevice QV_GetCommandDevice(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the logical units through which hosts give commands. */
    public native void QV_SetCommandDevice(String unit, QVSessionInfo session, CommandDevice device)
            throws DiskArrayException;

    /** Returns the pairs as couplings of logical units. */
    public native CouplingInfo QV_GetCouplingInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the synchronisation of the ports of a controller. */
    public native SyncControl QV_GetSyncControl(String unit, int controller)
            throws DiskArrayException;

    /** Sets the synchronisation of the ports of a controller. */
    public native void QV_SetSyncControl(
            String unit, int controller, SyncControl control, int option) throws DiskArrayException;

    // Volume migration

    /** Reserves logical units as targets of migrations. */
    public native void QV_AddLuMigrationReserveLU(
            String unit, QVSessionInfo session, LuMigrationReserve reserve)
            throws DiskArrayException;

    /** Takes back the reservation of logical units. */
    public native void QV_DeleteLuMigrationReserveLU(
            String unit, QVSessionInfo session, LuMigrationReserve reserve)
            throws DiskArrayException;

    /** Starts to migrate logical units. */
    public native void QV_StartLuMigration(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /** Cancels migrations that are still copying. */
    public native void QV_CancelLuMigration(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /** Splits the pairs of migrations. */
    public native void QV_SplitLuMigration(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /** Splits the pairs of migrations and releases their owner. */
    public native void QV_SplitLuMigrationFreeOwner(
            String unit, QVSessionInfo session, LuMigrationRequest request)
            throws DiskArrayException;

    /** Returns what the migration has to do with each logical unit. */
    public native LuMigrationState QV_GetLuMigrationState(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the reserved logical units and the migrations with their progress. */
    public native LuMigrationInformation QV_GetLuMigrationInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the state of the migration of the whole array. */
    public native AutoMigrationInformation QV_GetAutoMigrationInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Starts to migrate the whole array. */
    public native void QV_StartAutoMigration(
            String unit, QVSessionInfo session, AutoMigrationPace pace) throws DiskArrayException;

    /** Changes the pace of the migration of the whole array. */
    public native void QV_ChangeAutoMigrationCopyPace(
            String unit, QVSessionInfo session, AutoMigrationPace pace) throws DiskArrayException;

    /** Changes the networks of the array and of the new one. */
    public native void QV_ChangeAutoMigrationAccessPath(
            String unit, QVSessionInfo session, AutoMigrationAccessPath path)
            throws DiskArrayException;

    /** Deletes the data of the array that was migrated. */
    public native void QV_DeleteAutoMigrationData(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Resets whether the migration of the whole array may be used. */
    public native void QV_ResetAutoMigrationUsableStatus(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Restarts the array. */
    public native void QV_RebootAutoMigrationUnit(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Shuts the array down. */
    public native void QV_ShutdownAutoMigrationUnit(String unit, QVSessionInfo session)
            throws DiskArrayException;

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
