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

    /** Returns the addresses of the iSCSI ports. */
    public native QViSCSIPortInformation QV_GetiSCSIPortInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Sets the addresses of the iSCSI ports. */
    public native void QV_SetiSCSIPortInformation(
            String unit, QVSessionInfo session, QViSCSIPortInformation ports)
            throws DiskArrayException;

    /** Returns the iSCSI targets of all ports. */
    public native QViSCSITargetInformationAll QV_GetiSCSITargetInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Creates an iSCSI target. */
    public native void QV_CreateiSCSITarget(
            String unit, QVSessionInfo session, int controller, int port, int number,
            QViSCSITargetInfo target) throws DiskArrayException;

    /** Changes an iSCSI target. */
    public native void QV_ChangeiSCSITarget(
            String unit, QVSessionInfo session, int controller, int port, int number,
            QViSCSITargetInfo target) throws DiskArrayException;

    /** Deletes iSCSI targets of a port. */
    public native void QV_DeleteiSCSITarget(
            String unit, QVSessionInfo session, int controller, int port, DeleteTargetList targets)
            throws DiskArrayException;

    /** Takes all iSCSI targets of a port back to their first state. */
    public native void QV_InitiSCSITarget(
            String unit, QVSessionInfo session, int controller, int port) throws DiskArrayException;

    /** Changes the security of the iSCSI targets of a port. */
    public native void QV_ChangeiSCSITargetSecurity(
            String unit, QVSessionInfo session, int controller, int port, int security)
            throws DiskArrayException;

    /** Returns the registered iSCSI initiators of all ports. */
    public native QViSCSIInitiatorInformationAll QV_GetiSCSIInitiatorInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the registered iSCSI initiators of a port. */
    public native QViSCSIInitiatorPortInformation QV_GetiSCSIInitiatorInformation(
            String unit, QVSessionInfo session, int controller, int port) throws DiskArrayException;

    /** Sets the registered iSCSI initiators of a port; the name is spelled as in the library. */
    public native void QV_SetiSCSIInitiatortInformation(
            String unit, QVSessionInfo session, int controller, int port,
            QViSCSIInitiatorPortInfo initiators) throws DiskArrayException;

    /** Returns the iSCSI initiators that are logged in. */
    public native QViSCSILoginInitiatorInformationAll QV_GetiSCSILoginInitiatorInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the CHAP users of all ports. */
    public native QViSCSICHAPUserInformationAll QV_GetiSCSICHAPUserInformationAll(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the CHAP users of a port. */
    public native QViSCSICHAPUserPortInformation QV_GetiSCSICHAPUserInformation(
            String unit, QVSessionInfo session, int controller, int port) throws DiskArrayException;

    /** Sets the CHAP users of a port. */
    public native void QV_SetiSCSICHAPUserInformation(
            String unit, QVSessionInfo session, int controller, int port,
            QViSCSICHAPUserPortInfo users) throws DiskArrayException;

    /** Imports CHAP users from a file. */
    public native void QV_iSCSICHAPUserImport(String unit, String path, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the iSNS servers of the iSCSI ports. */
    public native QViSNSInformation QV_GetiSNSInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the iSNS servers of the iSCSI ports. */
    public native void QV_SetiSNSInformation(
            String unit, QVSessionInfo session, QViSNSInformation servers)
            throws DiskArrayException;

    /** Starts pings from iSCSI ports. */
    public native void QV_RequestiSCSIPing(String unit, QVSessionInfo session, QViSCSIPing request)
            throws DiskArrayException;

    /** Returns how far the pings came. */
    public native QViSCSIPing QV_GetiSCSIPingStatus(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the iSCSI paths to other arrays. */
    public native QViSCSIRemotePathInfo QV_GetiSCSIRemotePath(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the iSCSI paths to another array. */
    public native void QV_SetiSCSIRemotePath(
            String unit, QVSessionInfo session, QViSCSIRemotePath path) throws DiskArrayException;

    /** Deletes the iSCSI paths to another array. */
    public native void QV_DeliSCSIRemotePath(
            String unit, QVSessionInfo session, QViSCSIRemotePath path) throws DiskArrayException;

    // Fibre ports and LAN settings

    /** Returns the LAN address of a controller. */
    public native LANInformation QV_GetLANInformation(
            String unit, QVSessionInfo session, int controller) throws DiskArrayException;

    /** Sets the LAN address of a controller. */
    public native void QV_SetLANInformation(
            String unit, QVSessionInfo session, int controller, int port,
            LANInformation information) throws DiskArrayException;

    /** Returns the LAN addresses and links of both controllers. */
    public native LANInformationEx QV_GetLANInformationEx(String unit) throws DiskArrayException;

    /** Sets the LAN addresses and links of both controllers. */
    public native void QV_SetLANInformationEx(String unit, LANInformationEx information)
            throws DiskArrayException;

    /** Returns the management port numbers. */
    public native LANPortNumber QV_GetLANPortNumber(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the management port numbers. */
    public native void QV_SetLANPortNumber(
            String unit, QVSessionInfo session, int controller, LANPortNumber numbers)
            throws DiskArrayException;

    /** Returns the user LAN. */
    public native QVUserLANInformation QV_GetQVUserLANInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Sets the user LAN. */
    public native void QV_SetQVUserLANInformation(
            String unit, QVSessionInfo session, QVUserLANInformation information)
            throws DiskArrayException;

    /** Reads the user LAN from a file. */
    public native QVUserLANInformation QV_LoadQVUserLANInformation(
            String unit, String path, QVSessionInfo session) throws DiskArrayException;

    /** Writes the LAN settings to a file. */
    public native void QV_LANExport(String unit, QVSessionInfo session, LANFile file)
            throws DiskArrayException;

    /** Sets the LAN from a file. */
    public native void QV_LANImport(String unit, QVSessionInfo session, LANFile file)
            throws DiskArrayException;

    /** Returns the maintenance LAN. */
    public native MainteLanInfo QV_GetMainteLanInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the address of the maintenance LAN. */
    public native void QV_SetMainteIPAddress(
            String unit, QVSessionInfo session, MainteIPAddress address) throws DiskArrayException;

    /** Returns the addresses that the maintenance LAN may be given. */
    public native MainteLanAvailableList QV_GetMainteLanAvailableList(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the LAN of the network controllers. */
    public native NNCLANInformation QV_GetNNCLANInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the LAN of the network controllers. */
    public native void QV_SetNNCLANInformation(
            String unit, QVSessionInfo session, NNCLANInformation information)
            throws DiskArrayException;

    /** Returns the Fibre Channel ports: 2 elements, one for each controller. */
    public native FibreInformation[] QV_GetFibreInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the Fibre Channel ports of both controllers. */
    public native void QV_SetFibreInformation(
            String unit, QVSessionInfo session, FibreInformation first,
            FibreInformation second) throws DiskArrayException;

    /**
     * Reads the permitted hosts of a Fibre Channel port from a file: 128 elements. A null text is
     * an empty one.
     */
    public native FibreInformationPermission[] QV_FibreInfoPermissionImport(
            String unit, String path, int port) throws DiskArrayException;

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
