#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"
#include "arraylib/times.h"

// Registered units: the list that the library keeps on this host, and what concerns a unit as a
// whole.

/// A registered unit.
struct QVUnitParam {
  char unit_name[65];
  char group_name[17];
  std::int8_t connect_type;
  std::int8_t qv_type;
  std::uint8_t device_type;
  std::int8_t unit_conf;
  std::int8_t alert;
  char ctl0[256];
  char ctl1[256];
  char serial[9];
  std::int32_t ssl_used;
};
QUORVEL_RECORD(QVUnitParam, 612);
QUORVEL_OFFSET(QVUnitParam, connect_type, 82);
QUORVEL_OFFSET(QVUnitParam, ctl0, 87);
QUORVEL_OFFSET(QVUnitParam, ctl1, 343);
QUORVEL_OFFSET(QVUnitParam, serial, 599);
QUORVEL_OFFSET(QVUnitParam, ssl_used, 608);

/// Where and how to look for a unit.
struct DiscoverUnitRequest {
  std::uint8_t connect_type;
  char ip_dev[256];
  std::int32_t communication_mode;
};
QUORVEL_RECORD(DiscoverUnitRequest, 264);
QUORVEL_OFFSET(DiscoverUnitRequest, communication_mode, 260);

/// A unit that was found.
struct DiscoverUnit {
  std::uint8_t connect_type;
  char ip_dev[256];
  std::uint8_t qv_type;
  std::uint8_t device_type;
  std::uint8_t unit_conf;
  std::uint8_t ctlno;
  char serial[11];
  std::int32_t communication_port;
};
QUORVEL_RECORD(DiscoverUnit, 276);
QUORVEL_OFFSET(DiscoverUnit, serial, 261);
QUORVEL_OFFSET(DiscoverUnit, communication_port, 272);

/// A request to attach additional units.
struct AdditionalUnitRequest {
  std::int32_t mode;
};
QUORVEL_RECORD(AdditionalUnitRequest, 4);

/// The additional units of a registered one.
struct AdditionalUnitInformation {
  std::int32_t inquiry_time;
  std::int32_t polling_time;
  std::int32_t time_out;
  std::int32_t add_unit_num;
  std::int32_t connect_unit_num;
  std::int32_t unit_type;
  std::int32_t unit_status;
  std::int32_t unit_status_subcode;
};
QUORVEL_RECORD(AdditionalUnitInformation, 32);

/// A user of the array's own list.
struct ArrayUser {
  char user[17];
  char passwd[17];
};
QUORVEL_RECORD(ArrayUser, 34);
QUORVEL_SECRET(ArrayUser, passwd);

/// What a login to a unit returns: two texts, the first of them empty where there is nothing to
/// tell.
using LoginPair = char[2][17];

/// A password, NUL-terminated.
using Password = char[1024];

/// How many users are in the array's own list.
struct QVUserRegist {
  std::int32_t num;
  std::int32_t option;
};
QUORVEL_RECORD(QVUserRegist, 8);

struct CTLPortKind {
  std::int32_t portkind_ctl0;
  std::int32_t portkind_ctl1;
};
QUORVEL_RECORD(CTLPortKind, 8);

struct BaseInformation {
  std::int32_t add_info_index;
  char micro[9];
  char next_road_micro[11];
  std::int32_t qv_type;
  std::int32_t device_type;
  std::int32_t device_type_QVK_sub_code;
  std::int32_t port_type;
  std::int32_t unit_conf;
  std::int32_t sup_rglevel;
  std::int32_t reserved1;
  std::int32_t reserved2;
};
QUORVEL_RECORD(BaseInformation, 56);
QUORVEL_OFFSET(BaseInformation, next_road_micro, 13);
QUORVEL_OFFSET(BaseInformation, qv_type, 24);

/// Numbers of the array's logical objects, and times of its restarts.
struct LogicalInformation {
  std::int32_t index;
  std::int32_t index2;
  std::int32_t rg_count;
  std::int32_t lu_count;
  std::int32_t rg_lu_count;
  std::int32_t perm_count;
  std::int32_t cache_part_count;
  std::int32_t ext_bitmap;
  std::int32_t hg_count;
  std::int32_t reboot_time;
  std::int32_t replace_time;
  std::int32_t crosscall_reboot_time;
  std::int32_t max_reboot_time;
  std::int32_t max_replace_time;
  std::int32_t max_crosscall_replace_time;
  std::int32_t iscsi_target_count;
  std::int32_t iscsi_initiator_count;
  std::int32_t iscsi_login_initiator_count;
  std::int32_t iscsi_chap_user_count;
  std::int32_t account_count;
  std::int32_t role_count;
  std::int32_t resource_count;
  std::int32_t reserve_lu_count;
  std::int32_t migration_pair_count;
  std::int32_t gm_pair_count;
  std::int32_t gm_mirror_count;
  std::int32_t ss_pair_count;
  std::int32_t ss_mirror_count;
  std::int32_t fl_pair_count;
  std::int32_t fle_pair_count;
  std::int32_t gmss_ctg_count;
  std::int32_t fl_ctg_count;
  std::int32_t fle_ctg_count;
  std::int32_t fle_ctg_pair_count;
  std::int32_t remote_path_count;
  std::int32_t pool_count;
  std::int32_t pool_lu_count;
  std::int32_t integrate_count;
  std::int32_t command_count;
  std::int32_t lu_mapping_count;
  std::int32_t host_lu_count;
  std::int32_t reserved[25];
};
QUORVEL_RECORD(LogicalInformation, 264);
QUORVEL_OFFSET(LogicalInformation, reserved, 164);

/// Numbers of the array's parts.
struct PhysicalInformation {
  std::int32_t index;
  std::int32_t index2;
  std::int32_t cache_count;
  std::int32_t ps_count;
  std::int32_t fan_count;
  std::int32_t ac_count;
  std::int32_t batt_count;
  std::int32_t battbk_count;
  std::int32_t add_batt_count;
  std::int32_t hdd_hdu_count;
  std::int32_t hdd_unit_count;
  std::int32_t sp_count;
  std::int32_t enc_count;
  std::int32_t loop_count;
  std::int32_t backendpath_count;
  std::int32_t ifboard_count;
  std::int32_t port_count;
  std::int32_t unit_count;
  std::int32_t ps_unit_count;
  std::int32_t fan_unit_count;
  std::int32_t enc_unit_count;
  std::int32_t connector_count;
  std::int32_t hdd_sff_count;
  std::int32_t cpu_core_count;
  std::int32_t nnc_count;
  std::int32_t nnc_dimm_count;
  std::int32_t nnc_ps_count;
  std::int32_t nnc_fan_count;
  std::int32_t nnc_connector_count;
  std::int32_t nnc_ext_slot_count;
  std::int32_t repair_slot_count;
  std::int32_t reserved[16];
};
QUORVEL_RECORD(PhysicalInformation, 188);
QUORVEL_OFFSET(PhysicalInformation, reserved, 124);

/// What kind of array a unit is, and its numbers of logical objects and parts.
struct UnitInformation {
  BaseInformation b_info;
  LogicalInformation l_info;
  PhysicalInformation p_info;
};
QUORVEL_RECORD(UnitInformation, 508);
QUORVEL_OFFSET(UnitInformation, l_info, 56);
QUORVEL_OFFSET(UnitInformation, p_info, 320);

struct ControllerInfo {
  std::int32_t unknown[4];
};
QUORVEL_RECORD(ControllerInfo, 16);
QUORVEL_ASSUMED(ControllerInfo);

struct UnitIdentifier {
  char equipment_id[5];
  ControllerInfo ctl[2];
};
QUORVEL_RECORD(UnitIdentifier, 40);
QUORVEL_ASSUMED(UnitIdentifier);
QUORVEL_OFFSET(UnitIdentifier, ctl, 8);

struct TimeInfo {
  std::byte unknown[660];
};
QUORVEL_RECORD(TimeInfo, 660);
QUORVEL_ASSUMED(TimeInfo);

QUORVEL_API int QV_UnitAdd(const QVUnitParam* param);
QUORVEL_API int QV_UnitAddByIP(const QVUnitParam* param);
QUORVEL_API int QV_UnitChange(const LongUnitName* unit, const QVUnitParam* param);
QUORVEL_API int QV_UnitChangeByIP(const LongUnitName* unit, const QVUnitParam* param);
QUORVEL_API int QV_UnitDelete(const UnitName* unit);
QUORVEL_API int QV_GetUnitParam(const UnitName* unit, QVUnitParam* param);
QUORVEL_API int QV_GetUnitCount(std::int32_t* count);
/// Fills `count` records from `table` on.
QUORVEL_API int QV_GetUnitParamTable(std::int32_t count, QVUnitParam* table);
QUORVEL_COUNT_PARAMETER(QV_GetUnitParamTable, 0);
QUORVEL_API int QV_DiscoverUnitInformation(const DiscoverUnitRequest* request, DiscoverUnit* found);
QUORVEL_API int QV_DiscoverUnitInformationEx(const DiscoverUnitRequest* request,
                                             DiscoverUnit* found);
QUORVEL_API int QV_AddAdditionalUnit(const UnitName* unit, const QVSessionInfo* session,
                                     const AdditionalUnitRequest* request);
QUORVEL_API int QV_GetAdditionalUnitInformation(const UnitName* unit, const QVSessionInfo* session,
                                                AdditionalUnitInformation* information);

QUORVEL_API int QV_LoginQVUnit(const LongUnitName* unit, std::int32_t mode, const ArrayUser* user,
                               LoginPair* pair);
QUORVEL_API int QV_GetLoginUser(const LongUnitName* unit, std::int32_t mode, LoginPair* pair);
QUORVEL_API int QV_LogoutQVUnit(const LongUnitName* unit, std::int32_t mode);
QUORVEL_API int QV_CheckLogin(const LongUnitName* unit, std::int32_t mode, std::int32_t* state);
QUORVEL_API int QV_ResetLogin(const LongUnitName* unit, std::int32_t mode);
QUORVEL_API int QV_KeepSession(const UnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_TestUnitReady(const UnitName* unit, std::int32_t mode);
QUORVEL_API int QV_UnitReboot(const LongUnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_PasswdChange(const Password* password);
QUORVEL_SECRET_TEXTS(QV_PasswdChange);
/// Takes a text of any length.
QUORVEL_API int QV_PasswdCheck(const char* password);
QUORVEL_SECRET_TEXTS(QV_PasswdCheck);
QUORVEL_API int QV_RegistUser(const LongUnitName* unit, std::int32_t number, const ArrayUser* user);
QUORVEL_API int QV_ChangeUser(const LongUnitName* unit, std::int32_t number,
                              const ArrayUser* oldUser, const ArrayUser* newUser);
QUORVEL_API int QV_DeleteUser(const LongUnitName* unit, std::int32_t number, const ArrayUser* user);
QUORVEL_API int QV_DeleteAllUser(const LongUnitName* unit, std::int32_t number);
QUORVEL_API int QV_GetUserInformation(const LongUnitName* unit, std::int32_t number,
                                      QVUserRegist* users);
QUORVEL_API int QV_GetUnitInformation(const UnitName* unit, const QVSessionInfo* session,
                                      UnitInformation* information);
QUORVEL_API int QV_GetUnitCTLPortKind(const UnitName* unit, const QVSessionInfo* session,
                                      CTLPortKind* kinds);
QUORVEL_API int QV_GetUnitTime(const UnitName* unit, const QVSessionInfo* session, QVTime* time);
QUORVEL_API int QV_SetUnitTime(const UnitName* unit, const QVSessionInfo* session,
                               const QVTime* time);
QUORVEL_API int QV_SetUnitTimeNow(const UnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_GetUnitIdentifier(const UnitName* unit, const QVSessionInfo* session,
                                     UnitIdentifier* identifier);
QUORVEL_API int QV_SetUnitIdentifier(const UnitName* unit, const QVSessionInfo* session,
                                     const UnitIdentifier* identifier);
QUORVEL_API int QV_GetTimeInfo(const UnitName* unit, const QVSessionInfo* session, TimeInfo* info);
QUORVEL_API int QV_SetTimeInfo(const UnitName* unit, const QVSessionInfo* session,
                               const TimeInfo* info);
