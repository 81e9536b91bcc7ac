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

    // Remote paths and consistency groups

    // Volume migration

    // Firmware download and replacement

    /** Stages a firmware file and returns the library's number for it. */
    public native int QV_MicroFileConcat(
            String unit, QVSessionInfo session, String path, int option) throws DiskArrayException;

    /** Stages a firmware file, in the second form. */
    public native void QV_MicroFileConcat2(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /** Stages a firmware file, in the extended form. */
    public native void QV_MicroFileConcatEx(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /** Stages a firmware of two files. */
    public native void QV_MicroFileConcatEx2(
            String unit, QVSessionInfo session, String first, String second)
            throws DiskArrayException;

    /** Gives up what is staged of the array's firmware. */
    public native void QV_CancelMicroFileConcat() throws DiskArrayException;

    /** Gives up a staged firmware file. */
    public native void QV_CancelMicroFileConcat2(String path) throws DiskArrayException;

    /** Returns how far the download came. */
    public native int QV_GetMicroDownloadCount(String unit) throws DiskArrayException;

    /** Returns how far the download came, in the extended form. */
    public native int QV_GetMicroDownloadCountEx(String unit, int option) throws DiskArrayException;

    /** Returns how far the download of a file came. */
    public native int QV_GetMicroDownloadCountEx2(String unit, int option, String path)
            throws DiskArrayException;

    /** Downloads the staged firmware to the array. */
    public native void QV_MicroDownload(
            String unit, QVSessionInfo session, int option1, int option2, int option3)
            throws DiskArrayException;

    /** Downloads the staged firmware to the array, in the extended form. */
    public native void QV_MicroDownloadEx(
            String unit, QVSessionInfo session, int option1, int option2, int option3, int option4)
            throws DiskArrayException;

    /** Downloads a staged firmware file to the array. */
    public native void QV_MicroDownloadEx2(
            String unit, QVSessionInfo session, int option1, int option2, int option3,
            int option4, String path) throws DiskArrayException;

    /** Replaces the running firmware by the downloaded one. */
    public native void QV_MicroReplace(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /**
     * Replaces the running firmware and returns how far that came. The library's code 4109 is a
     * success, too.
     */
    public native MicroReplaceInformation QV_MicroReplaceEx(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    /** Replaces the running firmware by way of the other controller. */
    public native MicroReplaceInformation QV_MicroReplaceCrosscall(
            String unit, QVSessionInfo session, MicroReplaceCrosscallRequest request)
            throws DiskArrayException;

    /** Completes a replacement. */
    public native void QV_CompleteMicroReplace(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /** Returns what is staged of the array's firmware. */
    public native MicroFileInformation QV_GetMicroFileInformation() throws DiskArrayException;

    /** Returns the revision of the staged firmware. */
    public native String QV_GetNewMicroRevision() throws DiskArrayException;

    /** Returns the revision of a firmware file. */
    public native String QV_GetNewMicroRevision2(String path) throws DiskArrayException;

    /** Stages an enclosure firmware file. */
    public native void QV_ENCMicroFileConcat(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /** Stages an enclosure firmware file, in the extended form. */
    public native void QV_ENCMicroFileConcatEx(
            String unit, QVSessionInfo session, String path, int option) throws DiskArrayException;

    /** Gives up what is staged of the enclosure firmware. */
    public native void QV_CancelENCMicroFileConcat() throws DiskArrayException;

    /** Downloads the staged enclosure firmware and returns the library's number for it. */
    public native int QV_ENCMicroDownload(
            String unit, QVSessionInfo session, int option1, int option2) throws DiskArrayException;

    /** Returns how far the download of the enclosure firmware came. */
    public native int QV_GetENCMicroDownloadCount(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Replaces the running enclosure firmware by the downloaded one. */
    public native void QV_ENCMicroReplace(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /** Replaces the running enclosure firmware, in the extended form. */
    public native void QV_ENCMicroReplaceEx(
            String unit, QVSessionInfo session, int option, int record) throws DiskArrayException;

    /** Returns what is staged of the enclosure firmware. */
    public native ENCMicroInformation QV_GetENCMicroInformation() throws DiskArrayException;

    /** Returns the enclosure firmware of an array. */
    public native ENCMicroInformation QV_GetENCMicroInformationEx(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Returns the revision of the staged BIOS. */
    public native NNCBiosRevision QV_GetLocalNNCBiosRevision() throws DiskArrayException;

    /** Returns the BIOS revisions of the NAS nodes. */
    public native NNCBiosRevisionList QV_GetNNCBiosRevisionList(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Prepares the NAS nodes for the download of a BIOS. */
    public native void QV_PreparesNNCBiosDownload(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /** Stages a BIOS file. */
    public native void QV_NNCBiosFileConcat(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /** Gives up what is staged of the BIOS. */
    public native void QV_CancelNNCBiosFileConcat() throws DiskArrayException;

    /** Downloads the staged BIOS. */
    public native void QV_NNCBiosDownload(
            String unit, QVSessionInfo session, int option1, int option2) throws DiskArrayException;

    /** Returns how far the download of the BIOS came. */
    public native int QV_GetNNCBiosDownloadCount() throws DiskArrayException;

    /** Returns the state of the BIOS download of a NAS node. */
    public native NNCBiosDownloadStatus QV_GetNNCBiosDownloadStatus(
            String unit, QVSessionInfo session, int option) throws DiskArrayException;

    /** Returns which NAS nodes are being upgraded. */
    public native NNCUpgradeStatusList QV_GetNNCUpgradeStatusList(
            String unit, QVSessionInfo session) throws DiskArrayException;

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

    /** Returns the settings of the audit log. */
    public native QVAuditLogInformation QV_GetQVAuditLogInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Sets the settings of the audit log. */
    public native void QV_SetQVAuditLogInformation(
            String unit, QVSessionInfo session, QVAuditLogInformation information)
            throws DiskArrayException;

    /** Writes the audit log to a file. */
    public native void QV_QVAuditLogExport(String unit, QVSessionInfo session, String path)
            throws DiskArrayException;

    /** Clears the audit log. */
    public native void QV_InitQVAuditLog(
            String unit, QVSessionInfo session, AuditLogInitRequest request)
            throws DiskArrayException;

    // Alert check and e-mail alerts

    /** Returns the mail settings of this host. */
    public native EmailInfo QV_GetEmailInfo() throws DiskArrayException;

    /** Sets the mail settings of this host. */
    public native void QV_SetEmailInfo(EmailInfo info) throws DiskArrayException;

    /** Returns the alert of an array. */
    public native int QV_AlertCheck(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /** Returns the alert of an array, in the extended form. */
    public native AlertCheckEx QV_AlertCheckEx(String unit, QVSessionInfo session, int option)
            throws DiskArrayException;

    /** Returns how often alerts are checked for. */
    public native int QV_GetAlertInterval() throws DiskArrayException;

    /** Sets how often alerts are checked for. */
    public native void QV_SetAlertInterval(int interval) throws DiskArrayException;

    /** Returns who checks for alerts. */
    public native AlertCheckUser QV_GetAlertCheckUser() throws DiskArrayException;

    /** Sets who checks for alerts. */
    public native void QV_SetAlertCheckUser(AlertCheckUser user) throws DiskArrayException;

    /** Returns the state of the array's e-mail alert. */
    public native EmailAlertInformation QV_GetEmailAlertInformation(
            String unit, QVSessionInfo session) throws DiskArrayException;

    /** Sets the mail that the array sends on an alert. */
    public native void QV_SetEmailAlertInfo(String unit, QVSessionInfo session, EmailAlertInfo info)
            throws DiskArrayException;

    /** Clears the mail that the array sends on an alert. */
    public native void QV_ClearEmailAlertInfo(String unit, QVSessionInfo session)
            throws DiskArrayException;

    /** Changes the mode of the array's e-mail alert. */
    public native void QV_ChangeEmailAlertMode(String unit, QVSessionInfo session, int mode)
            throws DiskArrayException;

    /** Sends a test mail from a controller of the array. */
    public native void QV_TestEmailAlert(String unit, QVSessionInfo session, EmailAlertTest test)
            throws DiskArrayException;

    // SNMP configuration

    /** Reads a configuration from files of this host. */
    public native SnmpConfigInformation QV_LoadSnmpConfig(String pathA, String pathB)
            throws DiskArrayException;

    /** Writes a configuration to files of this host. */
    public native void QV_SaveSnmpConfig(String pathA, String pathB, SnmpConfigInformation config)
            throws DiskArrayException;

    /** Sets the configuration of the array. */
    public native void QV_SetSnmpConfigonMemory(
            String unit, QVSessionInfo session, SnmpConfigInformation config)
            throws DiskArrayException;

    /** Sets the configuration of the array from files of this host. */
    public native void QV_SetSnmpConfig(
            String unit, QVSessionInfo session, String first, String second)
            throws DiskArrayException;

    /** Writes the configuration of the array to files of this host. */
    public native void QV_SnmpConfigOutput(
            String unit, QVSessionInfo session, String first, String second)
            throws DiskArrayException;
}
