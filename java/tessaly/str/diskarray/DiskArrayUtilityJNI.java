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

    /** Returns all host groups. */
    public native HGList QV_GetHGList(String unit, QVSessionInfo session) throws DiskArrayException;

    /** Creates a host group under <code>hostGroup.hgname</code>, at most 32 characters. */
    public native void QV_CreateHG(
            String unit, QVSessionInfo session, int controller, int port, int group,
            HGInfo hostGroup)
            throws DiskArrayException;

    /** Renames a host group to <code>hostGroup.hgname</code>. */
    public native void QV_ChangeHG(
            String unit, QVSessionInfo session, int controller, int port, int group,
            HGInfo hostGroup)
            throws DiskArrayException;

    /** Deletes host groups of all ports. */
    public native void QV_DeleteHGList(String unit, QVSessionInfo session, DeleteHGList list)
            throws DiskArrayException;

    /** Sets host groups of all ports back to their first state. */
    public native void QV_InitHGList(String unit, QVSessionInfo session, InitHGList list)
            throws DiskArrayException;

    /** Deletes host groups of one port. */
    public native void QV_DeleteHGPortList(
            String unit, QVSessionInfo session, int controller, int port, DeleteHGPortList list)
            throws DiskArrayException;

    /** Sets host groups of one port back to their first state. */
    public native void QV_InitHGPortList(
            String unit, QVSessionInfo session, int controller, int port, InitHGPortList list)
            throws DiskArrayException;

    /** Returns the mapping of all ports. */
    public native LuMapping QV_GetLuMappingListAll(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the mapping of all ports in its compact form. */
    public native LuMapping QV_GetLuMappingListAllLite(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the mapping of all ports. */
    public native void QV_SetLuMappingListAll(String unit, QVSessionInfo session, LuMapping mapping)
            throws DiskArrayException;

    /** Sets the mapping of one host group. */
    public native void QV_SetLuMappingList(
            String unit, QVSessionInfo session, int controller, int port, int group,
            LuMappingHGInfo mapping)
            throws DiskArrayException;

    /** Returns the mapping of one port. */
    public native LuMappingPortList QV_GetLuMappingPortList(
            String unit, QVSessionInfo session, int controller, int port) throws DiskArrayException;

    /** Sets the mapping of one port. */
    public native void QV_SetLuMappingPortList(
            String unit, QVSessionInfo session, int controller, int port, LuMappingPortList mapping)
            throws DiskArrayException;

    /**
     * Returns an <code>Integer</code>, the mapping mode, and the {@link LuMappingHGInfo} of
     * one host group.
     */
    public native Object[] QV_GetLuMappingList(
            String unit, QVSessionInfo session, int controller, int port, int group)
            throws DiskArrayException;

    /** Returns the ports through which each LU is mapped. */
    public native LuMappingPortAssignInfo QV_GetLuMappingPortAssignInfo(
            String unit, QVSessionInfo session, ControllerRequest request)
            throws DiskArrayException;

    /** Changes the mapping mode. */
    public native void QV_ChangeMappingMode(String unit, QVSessionInfo session, int mode)
            throws DiskArrayException;

    /** Returns the mapping guard of every LU. */
    public native MappingGuardList QV_GetMappingGuardList(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the mapping guard of every LU. */
    public native void QV_SetMappingGuardList(
            String unit, QVSessionInfo session, MappingGuardList guard) throws DiskArrayException;

    /** Returns the options of all host groups. */
    public native HGOption QV_GetHGOptionAll(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the options of all host groups. */
    public native void QV_SetHGOptionAll(String unit, QVSessionInfo session, HGOption options)
            throws DiskArrayException;

    /** Returns the options of one host group. */
    public native HGOptionInfo QV_GetHGOption(
            String unit, QVSessionInfo session, int controller, int port, int group)
            throws DiskArrayException;

    /** Sets the options of one host group. */
    public native void QV_SetHGOption(
            String unit, QVSessionInfo session, int controller, int port, int group,
            HGOptionInfo option)
            throws DiskArrayException;

    /** Returns the options of all ports. */
    public native PortOption QV_GetPortOption(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the options of all ports. */
    public native void QV_SetPortOption(String unit, QVSessionInfo session, PortOption options)
            throws DiskArrayException;

    /** Returns the host group parameters that there are to choose from. */
    public native HGParameterList QV_GetHGParameterList(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the host group parameters in their second form. */
    public native HGParameterList2 QV_GetHGParameterList2(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Returns the identifiers of the host group parameters. */
    public native HGParameterID QV_GetHGParameterID(
            String unit, QVSessionInfo session, int controller) throws DiskArrayException;

    /** Returns the hosts known at the ports. */
    public native WWNInformation QV_GetWWNInformation(String unit) throws DiskArrayException;

    /** Sets the hosts known at the ports. */
    public native void QV_SetWWNInformation(String unit, WWNInformation information)
            throws DiskArrayException;

    /** Returns the hosts of the host groups. */
    public native WWNHGInformation QV_GetWWNHGInformation(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Sets the hosts of the host groups. */
    public native void QV_SetWWNHGInformation(
            String unit, QVSessionInfo session, WWNHGInformation information)
            throws DiskArrayException;

    /** Returns the two target IDs of a controller. */
    public native TargetId[] QV_GetTargetId(String unit, int controller) throws DiskArrayException;

    /** Sets a target ID of a controller. */
    public native void QV_SetTargetId(String unit, int controller, TargetId id)
            throws DiskArrayException;

    /** Returns the target IDs that a file holds. */
    public native TargetId[] QV_TargetIdImport(String unit, String file) throws DiskArrayException;

    /** Returns the target IDs that two files hold, in the WZ form. */
    public native WZTargetId[] QV_WZTargetIdImport(String unit, String first, String second)
            throws DiskArrayException;

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
