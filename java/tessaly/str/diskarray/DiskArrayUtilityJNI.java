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

    // Performance collection and output. Snapshots come in pairs, an element a controller.

    /**
     * Returns the command counts of all LUs. The elements from one that could not be built on are
     * null; null where there is no array for them.
     */
    public native StatisticalCommand[] QV_GetPerformance(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /**
     * Returns all counters. The elements from one that could not be built on are null; null where
     * there is no array for them.
     */
    public native PerformanceAll[] QV_GetPerformanceAll(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    /** Writes the command counts of an interval to a file. */
    public native void QV_PerformanceOutput(
            String unit, QVSessionInfo session, String path, StatisticalCommand preinfo0,
            StatisticalCommand afterinfo0, StatisticalCommand preinfo1,
            StatisticalCommand afterinfo1) throws DiskArrayException;

    /** Writes the command counts of an interval to a file, for the LUs whose byte is not zero. */
    public native void QV_PerformanceOutputLU(
            String unit, QVSessionInfo session, String path, StatisticalCommand preinfo0,
            StatisticalCommand afterinfo0, StatisticalCommand preinfo1,
            StatisticalCommand afterinfo1, byte[] lu, int option0, int option1)
            throws DiskArrayException;

    /** Writes the counters of an interval to a file. */
    public native void QV_PerformanceOutputAll(String unit, PerformanceOutputAllRequest request)
            throws DiskArrayException;

    /** Writes the counters of an interval to a file, in the extended form. */
    public native void QV_PerformanceOutputAllEx(
            String unit, QVSessionInfo session, PerformanceOutputAllExRequest request)
            throws DiskArrayException;

    /** Writes to a file that an interval was left out. */
    public native void QV_PerformanceOutputSkip(String unit, String path, QVTime time, int option)
            throws DiskArrayException;

    /** Writes a part of a collection as CSV. */
    public native void QV_PerformanceOutputCSV(String path, PerformanceOutputCSVRequest request)
            throws DiskArrayException;

    /** Returns how many CSV files a part of a collection makes. */
    public native int QV_GetPerformanceCSVNum(String path, PerformanceOutputCSVRequest request)
            throws DiskArrayException;

    /** Computes the graph of an interval. */
    public native PerformanceCollectGraphInfo QV_PerformanceOutputGraphInfo(
            String unit, QVSessionInfo session, PerformanceOutputGraphInfoRequest request)
            throws DiskArrayException;

    /** Begins a collection. */
    public native void QV_PerformanceDataInitialize(
            QVSessionInfo session, String path, int option0, int option1)
            throws DiskArrayException;

    /** Adds the graph of an interval to a collection. */
    public native void QV_PerformanceDataOutput(String path, PerformanceCollectGraphInfo graph)
            throws DiskArrayException;

    /** Returns the content of a collection's management file. */
    public native PerformanceMngInfo QV_PerformanceInputMngFile(String path)
            throws DiskArrayException;

    /** Returns how many files a collection may have. */
    public native int QV_GetPfmFileMaxCount() throws DiskArrayException;

    /** Returns whether a unit counts. */
    public native int QV_GetPfmStatisCfg(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Switches counting on or off. */
    public native void QV_SetPfmStatisCfg(String unit, QVSessionInfo session, int enabled)
            throws DiskArrayException;

    /** Returns the numbers of errors at which a drive is reported. */
    public native Threshold QV_GetThreshold(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the numbers of errors at which a drive is reported. */
    public native void QV_SetThreshold(String unit, QVSessionInfo session, Threshold threshold)
            throws DiskArrayException;

    // Statistical information

    /** Returns the array's internal counters. */
    public native StatisticalInformation QV_GetStatisticalInformation(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    // RAID groups

    // Logical units and formatting

    // Pools, virtual volumes and special LUs

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
