#pragma once

#include "arraylib/record.h"

// Accounts of an array, and the sessions that they open.

/// A session, as the login returned it.
struct QVSessionInfo {
  std::byte session_id[32];
};
QUORVEL_RECORD(QVSessionInfo, 32);
QUORVEL_SECRET(QVSessionInfo, session_id);

struct LoginRequest {
  char user_id[257];
  char passwd[257];
  std::int32_t log_option;
  char log_string[128];
};
QUORVEL_RECORD(LoginRequest, 648);
QUORVEL_SECRET(LoginRequest, passwd);
QUORVEL_OFFSET(LoginRequest, log_option, 516);

struct LogoutOption {
  std::int32_t log_option;
};
QUORVEL_RECORD(LogoutOption, 4);

/// An account to create or to change.
struct Account {
  char user_id[257];
  std::int32_t set_passwd;
  char passwd[257];
  std::int32_t account_type;
  std::int32_t role;
  std::int32_t account_enable;
};
QUORVEL_RECORD(Account, 536);
QUORVEL_SECRET(Account, passwd);
QUORVEL_OFFSET(Account, set_passwd, 260);
QUORVEL_OFFSET(Account, passwd, 264);
QUORVEL_OFFSET(Account, account_type, 524);

struct AccountIdentifier {
  char user_id[257];
};
QUORVEL_RECORD(AccountIdentifier, 257);

struct OwnPasswordChange {
  char user_id[257];
  char old_passwd[257];
  char new_passwd[257];
};
QUORVEL_RECORD(OwnPasswordChange, 771);
QUORVEL_SECRET(OwnPasswordChange, old_passwd, new_passwd);

struct AccountOptionInfo {
  std::int32_t password_min_length;
  std::int32_t session_timeout_used;
  std::int32_t session_timeout;
};
QUORVEL_RECORD(AccountOptionInfo, 12);
QUORVEL_ASSUMED(AccountOptionInfo);

struct AccountAdditionalInfo {
  std::int32_t keep_alive_time;
};
QUORVEL_RECORD(AccountAdditionalInfo, 4);
QUORVEL_ASSUMED(AccountAdditionalInfo);

struct AccountOption {
  AccountOptionInfo option_info;
  AccountAdditionalInfo additional_info;
};
QUORVEL_RECORD(AccountOption, 16);
QUORVEL_ASSUMED(AccountOption);

struct QVAccountRole {
  char role_name[257];
};
QUORVEL_RECORD(QVAccountRole, 257);
QUORVEL_ASSUMED(QVAccountRole);

struct QVAccountRoleInformation {
  std::int32_t role_valid_index;
  QVAccountRole role_info[32];
};
QUORVEL_RECORD(QVAccountRoleInformation, 8228);
QUORVEL_ASSUMED(QVAccountRoleInformation);

struct QVAccountBaseInfo {
  char user_id[257];
  std::int32_t set_passwd;
  char passwd[257];
  std::int32_t account_type;
  std::int32_t role;
  std::int32_t account_enable;
  std::byte reserved[8];
};
QUORVEL_RECORD(QVAccountBaseInfo, 544);
QUORVEL_SECRET(QVAccountBaseInfo, passwd);
QUORVEL_ASSUMED(QVAccountBaseInfo);

struct QVAccountInfoList {
  std::int32_t reserved;
  QVAccountBaseInfo account_info[21];
};
QUORVEL_RECORD(QVAccountInfoList, 11428);
QUORVEL_ASSUMED(QVAccountInfoList);

struct OwnUserPermission {
  std::int32_t operation_auth[9];
  std::int32_t original_operation_auth[9];
  std::int32_t role;
};
QUORVEL_RECORD(OwnUserPermission, 76);
QUORVEL_ASSUMED(OwnUserPermission);

struct AccountBanner {
  std::int32_t warning_banner_display;
  char warning_banner[6000];
};
QUORVEL_RECORD(AccountBanner, 6004);
QUORVEL_ASSUMED(AccountBanner);

QUORVEL_API int QV_LoginQVAccount(const UnitName* unit, const LoginRequest* request,
                                  QVSessionInfo* session);
QUORVEL_API int QV_LoginQVAccountAlertCheck(const UnitName* unit, std::int32_t option,
                                            QVSessionInfo* session);
QUORVEL_API int QV_LogoutQVAccount(const UnitName* unit, const QVSessionInfo* session,
                                   const LogoutOption* option);
QUORVEL_API int QV_LogoutQVAccountAlertCheck(const UnitName* unit, const QVSessionInfo* session,
                                             const LogoutOption* option);
QUORVEL_API int QV_ForcedLogoutQVAccount(const UnitName* unit, const QVSessionInfo* session,
                                         const AccountIdentifier* account);
QUORVEL_API int QV_DeleteAccount(const UnitName* unit, const QVSessionInfo* session,
                                 const AccountIdentifier* account);
QUORVEL_API int QV_CreateAccount(const UnitName* unit, const QVSessionInfo* session,
                                 const Account* account);
QUORVEL_API int QV_ChangeAccount(const UnitName* unit, const QVSessionInfo* session,
                                 const Account* account);
QUORVEL_API int QV_ChangeOwnUserPassword(const UnitName* unit, const QVSessionInfo* session,
                                         const OwnPasswordChange* change);
QUORVEL_API int QV_GetAccountOption(const UnitName* unit, const QVSessionInfo* session,
                                    AccountOption* option);
QUORVEL_API int QV_SetAccountOption(const UnitName* unit, const QVSessionInfo* session,
                                    const AccountOption* option);
QUORVEL_API int QV_GetQVAccountRoleInformation(const UnitName* unit, const QVSessionInfo* session,
                                               QVAccountRoleInformation* roles);
QUORVEL_API int QV_GetAccountInformation(const UnitName* unit, const QVSessionInfo* session,
                                         QVAccountInfoList* accounts);
QUORVEL_API int QV_GetOwnUserPermission(const UnitName* unit, const QVSessionInfo* session,
                                        OwnUserPermission* permission);
QUORVEL_API int QV_GetAccountBanner(const UnitName* unit, AccountBanner* banner);
QUORVEL_API int QV_GetAccountBannerAuth(const UnitName* unit, const QVSessionInfo* session,
                                        AccountBanner* banner);
QUORVEL_API int QV_SetAccountBannerAuth(const UnitName* unit, const QVSessionInfo* session,
                                        const AccountBanner* banner);

// Audit log

/// A syslog server that the audit log is sent to.
struct QVAuditLogSyslogServer {
  std::int32_t server_used;
  char ip_address[40];
};
QUORVEL_RECORD(QVAuditLogSyslogServer, 44);

struct QVAuditLogSyslogServerInfo {
  std::int32_t serverall_used;
  QVAuditLogSyslogServer server[2];
};
QUORVEL_RECORD(QVAuditLogSyslogServerInfo, 92);

/// The log that the array keeps itself.
struct QVAuditLogInternalLog {
  std::int32_t internallog_used;
};
QUORVEL_RECORD(QVAuditLogInternalLog, 4);

/// The settings of the audit log.
struct QVAuditLogInformation {
  std::int32_t option;
  std::int32_t set_valid;
  QVAuditLogSyslogServerInfo auditlog_server;
  QVAuditLogInternalLog auditlog_internallog;
};
QUORVEL_RECORD(QVAuditLogInformation, 104);
QUORVEL_OFFSET(QVAuditLogInformation, auditlog_internallog, 100);

/// A request to clear the audit log.
struct AuditLogInitRequest {
  std::int32_t set_valid;
};
QUORVEL_RECORD(AuditLogInitRequest, 4);

QUORVEL_API int QV_GetQVAuditLogInformation(const UnitName* unit, const QVSessionInfo* session,
                                            QVAuditLogInformation* information);
QUORVEL_API int QV_SetQVAuditLogInformation(const UnitName* unit, const QVSessionInfo* session,
                                            const QVAuditLogInformation* information);
QUORVEL_API int QV_QVAuditLogExport(const UnitName* unit, const QVSessionInfo* session,
                                    const FilePath* path);
QUORVEL_API int QV_InitQVAuditLog(const UnitName* unit, const QVSessionInfo* session,
                                  const AuditLogInitRequest* request);
