#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"

// Alerts of an array and how they are notified: the alert check, e-mail and SNMP.

// Alert check and e-mail alerts

/// The mail settings of this host.
struct EmailInfo {
  std::int32_t on_off;
  char domain[40];
  char smtp[100];
  char from[100];
  std::int32_t tonum;
  char to[20][100];
};
QUORVEL_RECORD(EmailInfo, 2248);
QUORVEL_OFFSET(EmailInfo, tonum, 244);
QUORVEL_OFFSET(EmailInfo, to, 248);

/// What an alert check found.
struct AlertCheckEx {
  std::int32_t valid_index;
  std::int32_t alert;
  std::int32_t alert_sa;
};
QUORVEL_RECORD(AlertCheckEx, 12);

/// Who checks for alerts.
struct AlertCheckUser {
  char user_id[257];
  char passwd[257];
  std::int32_t account_enable;
};
QUORVEL_RECORD(AlertCheckUser, 520);
QUORVEL_SECRET(AlertCheckUser, passwd);
QUORVEL_OFFSET(AlertCheckUser, account_enable, 516);

/// The mail that an array sends.
struct EmailAlertInfo {
  char smtp[64];
  char domain[256];
  char from_address[64];
  char to_address[4][64];
  char reply_address[64];
  char additional_info[64];
  std::int32_t send_type[4];
};
QUORVEL_RECORD(EmailAlertInfo, 784);
QUORVEL_OFFSET(EmailAlertInfo, to_address, 384);
QUORVEL_OFFSET(EmailAlertInfo, send_type, 768);

/// The e-mail alert settings of an array.
struct EmailAlertInformation {
  std::int32_t send_mode;
  std::int32_t ctl_flag[2];
  std::int32_t exec_flag;
  std::int32_t exec_result;
  EmailAlertInfo mail;
};
QUORVEL_RECORD(EmailAlertInformation, 804);
QUORVEL_OFFSET(EmailAlertInformation, mail, 20);

/// A request for a test mail.
struct EmailAlertTest {
  std::int32_t ctl;
};
QUORVEL_RECORD(EmailAlertTest, 4);

QUORVEL_API int QV_GetEmailInfo(EmailInfo* info);
QUORVEL_API int QV_SetEmailInfo(const EmailInfo* info);
QUORVEL_API int QV_AlertCheck(const UnitName* unit, const QVSessionInfo* session,
                              std::int32_t option, std::int32_t* alert);
QUORVEL_API int QV_AlertCheckEx(const UnitName* unit, const QVSessionInfo* session,
                                std::int32_t option, AlertCheckEx* alert);
QUORVEL_ASSUMED_FUNCTION(QV_AlertCheckEx);
QUORVEL_API int QV_GetAlertInterval(std::int32_t* interval);
QUORVEL_API int QV_SetAlertInterval(std::int32_t interval);
QUORVEL_API int QV_GetAlertCheckUser(AlertCheckUser* user);
QUORVEL_API int QV_SetAlertCheckUser(const AlertCheckUser* user);
QUORVEL_API int QV_GetEmailAlertInformation(const UnitName* unit, const QVSessionInfo* session,
                                            EmailAlertInformation* information);
QUORVEL_API int QV_SetEmailAlertInfo(const UnitName* unit, const QVSessionInfo* session,
                                     const EmailAlertInfo* info);
QUORVEL_API int QV_ClearEmailAlertInfo(const UnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_ChangeEmailAlertMode(const UnitName* unit, const QVSessionInfo* session,
                                        std::int32_t mode);
QUORVEL_API int QV_TestEmailAlert(const UnitName* unit, const QVSessionInfo* session,
                                  const EmailAlertTest* test);

// SNMP configuration

/// The configuration of an array's SNMP agent.
struct SnmpConfigInformation {
  std::int32_t set_valid;
  char conf[4096];
  char name[255];
};
QUORVEL_RECORD(SnmpConfigInformation, 4356);
QUORVEL_OFFSET(SnmpConfigInformation, name, 4100);

QUORVEL_API int QV_LoadSnmpConfig(const FilePath* pathA, const FilePath* pathB,
                                  SnmpConfigInformation* config);
QUORVEL_API int QV_SaveSnmpConfig(const FilePath* pathA, const FilePath* pathB,
                                  const SnmpConfigInformation* config);
QUORVEL_API int QV_SetSnmpConfigonMemory(const UnitName* unit, const QVSessionInfo* session,
                                         const SnmpConfigInformation* config);
QUORVEL_API int QV_SetSnmpConfig(const UnitName* unit, const QVSessionInfo* session,
                                 const FilePath* first, const FilePath* second);
QUORVEL_ASSUMED_FUNCTION(QV_SetSnmpConfig);
QUORVEL_API int QV_SnmpConfigOutput(const UnitName* unit, const QVSessionInfo* session,
                                    const FilePath* first, const FilePath* second);
QUORVEL_ASSUMED_FUNCTION(QV_SnmpConfigOutput);
