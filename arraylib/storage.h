#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"

// RAID groups, the logical units (LUs) in them, and what is made of those: pools, virtual volumes,
// integrated, data-management and guarded LUs. A capacity in two words, high word first, is one
// unsigned 64-bit quantity.

// RAID groups

/// A RAID group in the short form.
struct RaidGroup {
  std::int32_t rgnum;
  std::int32_t level;
  std::int32_t port;
  std::int32_t row;
  std::int32_t width;
  std::int32_t depth;
  std::int32_t minimum_capa;
  std::int32_t lastLBASet;
  std::int32_t lastLBA;
  std::int32_t rest_h;
  std::int32_t rest;
  std::int32_t lumaxcapa;
  std::int32_t unit_type;
  std::int32_t unit_type_sub_code;
};
QUORVEL_RECORD(RaidGroup, 56);

/// A RAID group in the detailed form.
struct RgDetail {
  std::int32_t valid_index;
  std::int32_t rgnum;
  std::int32_t level;
  std::int32_t start_unit_no;
  std::int32_t start_hdu_no;
  std::int32_t parity_hdu_count;
  std::int32_t parity_count;
  std::int32_t minimum_capa;
  std::int32_t total_capa_h;
  std::int32_t total_capa_l;
  std::int32_t rest_capa_h;
  std::int32_t rest_capa_l;
  std::int32_t rg_type;
  std::int32_t lu_count;
};
QUORVEL_RECORD(RgDetail, 56);

/// A drive of a RAID group, and where the group's next drive is.
struct RgDriveInfo {
  std::int32_t valid_index;
  std::int32_t next_unit_no;
  std::int32_t next_hdu_no;
  std::int32_t paritygroup_no;
};
QUORVEL_RECORD(RgDriveInfo, 16);

/// All RAID groups, and their drives in rows.
struct RaidGroupInformation {
  std::int32_t rg_count;
  RgDetail rg[200];
  RgDriveInfo rgdrv[60][30];
};
QUORVEL_RECORD(RaidGroupInformation, 40004);
QUORVEL_OFFSET(RaidGroupInformation, rgdrv, 11204);

/// A drive chosen for a new RAID group.
struct CreateRgDrive {
  std::int32_t unit_no;
  std::int32_t hdu_no;
};
QUORVEL_RECORD(CreateRgDrive, 8);

/// A RAID group to create, or to compute the capacity of.
struct CreateRaidGroup {
  std::int32_t create_mode;
  std::int32_t rgnum;
  std::int32_t level;
  std::int32_t drive_type;
  std::int32_t drive_capa;
  std::int32_t parity_hdu_count;
  std::int32_t parity_count;
  CreateRgDrive rgdrv[1800];
};
QUORVEL_RECORD(CreateRaidGroup, 14428);
QUORVEL_OFFSET(CreateRaidGroup, rgdrv, 28);

/// An area of a RAID group.
struct AreaInfo {
  std::int32_t areakind;
  std::int32_t lun;
  std::int32_t befor_lun;
  std::int32_t area_capa_h;
  std::int32_t area_capa_l;
};
QUORVEL_RECORD(AreaInfo, 20);

/// The areas of one RAID group.
struct RGAreaInformation {
  std::int32_t rgnum;
  std::int32_t lumaxcapa;
  std::int32_t lumaxcapa_h;
  std::int32_t lumaxcapa_l;
  std::int32_t area_count;
  AreaInfo area[8193];
};
QUORVEL_RECORD(RGAreaInformation, 163880);
QUORVEL_OFFSET(RGAreaInformation, area, 20);

QUORVEL_API int QV_GetRaidGroups(const UnitName* unit, RaidGroup (*groups)[90]);
QUORVEL_API int QV_RaidGroupAdd(const UnitName* unit, const RaidGroup* group);
QUORVEL_API int QV_RaidGroupExpand(const UnitName* unit, const RaidGroup* group);
QUORVEL_API int QV_RaidGroupDelete(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t rgnum);
QUORVEL_API int QV_RaidGroupAllDelete(const UnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_CreateRaidGroup(const UnitName* unit, const QVSessionInfo* session,
                                   const CreateRaidGroup* request);
QUORVEL_API int QV_GetRaidGroupInformation(const UnitName* unit, const QVSessionInfo* session,
                                           RaidGroupInformation* information);
QUORVEL_API int QV_GetRGAreaInformation(const UnitName* unit, const QVSessionInfo* session,
                                        std::int32_t rgnum, RGAreaInformation* information);
QUORVEL_API int QV_GetRaidGroupCreationCapacity(const UnitName* unit, const QVSessionInfo* session,
                                                const CreateRaidGroup* request, RgDetail* detail);

// Logical units and formatting

/// A logical unit.
struct LogicalUnit {
  std::int32_t luNumber;
  std::int32_t rgNumber;
  std::int32_t raid_level;
  std::int32_t staging;
  std::int32_t capacity;
  std::int32_t capacity_h;
  std::int32_t capacity_l;
  std::int32_t befor_lun;
  std::int32_t cachepart_no;
  std::int32_t pair_cachepart_valid;
  std::int32_t pair_cachepart_no;
  std::int32_t current_cachepart_no;
  std::int32_t stripe;
  std::int32_t lu_use_type;
  std::int32_t defaultCTL;
  std::int32_t currentCTL;
  std::int32_t status;
  std::int32_t hostblock;
  std::int32_t lu_valid;
  std::int32_t qf_status;
  std::int32_t correction_status;
  std::int32_t rg_last_lu;
  std::int32_t unit_type;
  std::int32_t unit_type_sub_code;
};
QUORVEL_RECORD(LogicalUnit, 96);

/// A logical unit to create.
struct LogicalUnitCreationRequest {
  std::int32_t luNumber;
  std::int32_t rgNumber;
  std::int32_t lu_capacity_h;
  std::int32_t lu_capacity_l;
  std::int32_t befor_lun_count;
  std::int32_t befor_lun[128];
  std::int32_t cachepart_no;
  std::int32_t pair_cachepart_valid;
  std::int32_t pair_cachepart_no;
  std::int32_t stripe;
  std::int32_t lu_use_type;
  std::int32_t hostblock;
};
QUORVEL_RECORD(LogicalUnitCreationRequest, 556);
QUORVEL_OFFSET(LogicalUnitCreationRequest, befor_lun, 20);
QUORVEL_OFFSET(LogicalUnitCreationRequest, cachepart_no, 532);

/// A logical unit to reallocate.
struct LogicalUnitReallocationRequest {
  std::int32_t lun;
  std::int32_t lusize;
  std::int32_t newlun;
};
QUORVEL_RECORD(LogicalUnitReallocationRequest, 12);

/// How far an LU that was entered for formatting is.
struct FormatStatus {
  std::int32_t entry;
  std::int32_t status;
  std::int32_t percent;
  std::int32_t err_code_sense_key;
  std::int32_t err_code_sense_code;
};
QUORVEL_RECORD(FormatStatus, 20);

struct FormatStatusList {
  std::int32_t mode;
  std::int32_t totalpercent;
  std::int32_t resttime;
  FormatStatus lu[2048];
};
QUORVEL_RECORD(FormatStatusList, 40972);
QUORVEL_OFFSET(FormatStatusList, lu, 12);

/// How far the formatting of an LU is.
struct LuFormatStatus {
  std::int32_t status;
  std::int32_t percent;
  std::int32_t err_code_sense_key;
  std::int32_t err_code_sense_code;
};
QUORVEL_RECORD(LuFormatStatus, 16);

struct LuFormatStatusList {
  LuFormatStatus lu[2048];
};
QUORVEL_RECORD(LuFormatStatusList, 32768);

/// A byte for each LU, whether it is entered for formatting.
struct FormatEntryList {
  std::byte lu[2048];
};
QUORVEL_RECORD(FormatEntryList, 2048);

/// How quick formats are run.
struct QuickFormatOption {
  std::int32_t valid_index;
  std::int32_t change_index;
  std::int32_t priority_mode;
  std::int32_t format_mode;
};
QUORVEL_RECORD(QuickFormatOption, 16);

/// How far the quick format of an LU is.
struct QuickFormatStatus {
  std::int32_t entry;
  std::int32_t status;
  std::int32_t percent;
  std::int32_t waiting_number;
};
QUORVEL_RECORD(QuickFormatStatus, 16);

struct QuickFormatStatusList {
  std::int32_t priority_mode;
  std::int32_t format_mode;
  QuickFormatStatus lu[8192];
};
QUORVEL_RECORD(QuickFormatStatusList, 131080);
QUORVEL_OFFSET(QuickFormatStatusList, lu, 8);

/// A byte for each LU, whether it is entered for a quick format.
struct QuickFormatEntryList {
  std::byte lu[8192];
};
QUORVEL_RECORD(QuickFormatEntryList, 8192);

/// LUs whose parity is to be corrected.
struct ParityCorrectionRequest {
  std::int32_t correction_mode;
  std::int32_t lu_count;
  std::int32_t lu[8192];
};
QUORVEL_RECORD(ParityCorrectionRequest, 32776);
QUORVEL_OFFSET(ParityCorrectionRequest, lu, 8);

/// How far the parity correction of an LU is.
struct CorrectionLuStatus {
  std::int32_t status;
  std::int32_t percent;
  std::int32_t waiting_number;
};
QUORVEL_RECORD(CorrectionLuStatus, 12);

struct ParityCorrectionStatusList {
  CorrectionLuStatus lu[8192];
};
QUORVEL_RECORD(ParityCorrectionStatusList, 98304);

/// The controller that owns an LU.
struct LuOwnershipInfo {
  std::int32_t lu_num;
  std::int32_t rg_num;
  std::int32_t lu_type;
  std::int32_t d_ctl;
  std::int32_t c_ctl;
  std::int32_t cache_num;
  std::int32_t cpucore_num;
};
QUORVEL_RECORD(LuOwnershipInfo, 28);

struct LuOwnership {
  std::int32_t count;
  LuOwnershipInfo lu[8192];
};
QUORVEL_RECORD(LuOwnership, 229380);
QUORVEL_OFFSET(LuOwnership, lu, 4);

QUORVEL_API int QV_GetLogicalUnit(const UnitName* unit, const QVSessionInfo* session,
                                  LogicalUnit (*list)[8192]);
QUORVEL_API int QV_GetLogicalUnit1(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t lun, LogicalUnit* record);
QUORVEL_API int QV_GetLastLogicalUnit(const UnitName* unit, std::int32_t* lun);
QUORVEL_API int QV_CreateLogicalUnit(const UnitName* unit, const QVSessionInfo* session,
                                     const LogicalUnitCreationRequest* request);
QUORVEL_API int QV_LogicalUnitAdd(const UnitName* unit, const QVSessionInfo* session,
                                  const LogicalUnit* record);
QUORVEL_API int QV_LogicalUnitDelete(const UnitName* unit);
QUORVEL_API int QV_LogicalUnitDeleteAll(const UnitName* unit);
QUORVEL_API int QV_LogicalUnitDeleteByLUN(const UnitName* unit, const QVSessionInfo* session,
                                          std::int32_t lun);
QUORVEL_API int QV_LogicalUnitExpand(const UnitName* unit, std::int32_t first, std::int32_t second);
QUORVEL_API int QV_LogicalUnitChangeStaging(const UnitName* unit, const QVSessionInfo* session,
                                            std::int32_t first, std::int32_t second);
QUORVEL_API int QV_LogicalUnitChangeCtl(const UnitName* unit, const QVSessionInfo* session,
                                        std::int32_t value);
QUORVEL_API int QV_LogicalUnitInvalid(const UnitName* unit, std::int32_t lun);
QUORVEL_API int QV_LogicalUnitRestore(const UnitName* unit, std::int32_t lun);
QUORVEL_API int QV_LogicalUnitRealloc(const UnitName* unit,
                                      const LogicalUnitReallocationRequest* request);
QUORVEL_API int QV_LogicalUnitFormat(const UnitName* unit, std::int32_t first, std::int32_t second);
QUORVEL_API int QV_LogicalUnitFormatStatus(const UnitName* unit, std::int32_t lun,
                                           std::int32_t* status);
QUORVEL_API int QV_LogicalUnitFormatImmediateCTL(const UnitName* unit, std::int32_t first,
                                                 std::int32_t second, std::int32_t* result);
QUORVEL_API int QV_LogicalUnitFormatStatusList(const UnitName* unit, LuFormatStatusList* list);
QUORVEL_API int QV_EntryFormatList(const UnitName* unit, const FormatEntryList* list);
QUORVEL_API int QV_GetFormatStatusList(const UnitName* unit, FormatStatusList* list);
QUORVEL_API int QV_GetQuickFormatOption(const UnitName* unit, const QVSessionInfo* session,
                                        QuickFormatOption* option);
QUORVEL_API int QV_SetQuickFormatOption(const UnitName* unit, const QVSessionInfo* session,
                                        const QuickFormatOption* option);
QUORVEL_API int QV_EntryQuickFormatList(const UnitName* unit, const QVSessionInfo* session,
                                        const QuickFormatEntryList* list);
QUORVEL_API int QV_GetQuickFormatStatusList(const UnitName* unit, const QVSessionInfo* session,
                                            QuickFormatStatusList* list);
QUORVEL_API int QV_EntryParityCorrectionList(const UnitName* unit, const QVSessionInfo* session,
                                             const ParityCorrectionRequest* request);
QUORVEL_API int QV_GetParityCorrectionStatusList(const UnitName* unit, const QVSessionInfo* session,
                                                 ParityCorrectionStatusList* list);
QUORVEL_API int QV_GetLuOwnership(const UnitName* unit, const QVSessionInfo* session,
                                  LuOwnership* list);
QUORVEL_API int QV_SetLuOwnership(const UnitName* unit, const QVSessionInfo* session,
                                  const LuOwnershipInfo* info);

// Pools, virtual volumes and special LUs

/// A pool and the numbers of its LUs.
struct PoolDetailInfo {
  std::int32_t pool_no;
  std::int32_t pool_status;
  std::int32_t allcapa_h;
  std::int32_t allcapa_l;
  std::int32_t usedcapa_h;
  std::int32_t usedcapa_l;
  std::int32_t used_rate;
  std::int32_t threshold;
  std::int32_t lu_count;
  std::int32_t lu[64];
};
QUORVEL_RECORD(PoolDetailInfo, 292);
QUORVEL_OFFSET(PoolDetailInfo, lu, 36);

/// The pool of one controller.
struct PoolCtlInfo {
  std::int32_t pool_enable_count;
  PoolDetailInfo pool[1];
};
QUORVEL_RECORD(PoolCtlInfo, 296);
QUORVEL_ASSUMED(PoolCtlInfo, pool);

/// The pools of the whole array.
struct PoolSysInfo {
  std::int32_t pool_enable_count;
  PoolDetailInfo pool[64];
};
QUORVEL_RECORD(PoolSysInfo, 18692);

struct PoolInfo {
  std::int32_t option;
  PoolCtlInfo ctl[2];
  PoolSysInfo sys;
};
QUORVEL_RECORD(PoolInfo, 19288);
QUORVEL_OFFSET(PoolInfo, ctl, 4);
QUORVEL_OFFSET(PoolInfo, sys, 596);

/// A pool whose settings change.
struct PoolChangeRequest {
  std::int32_t ctl_no;
  std::int32_t pool_no;
  std::int32_t poolinfo_chg_index;
  std::int32_t threshold;
};
QUORVEL_RECORD(PoolChangeRequest, 16);

/// LUs to add to a pool.
struct PoolLUListRequest {
  std::int32_t lu_count;
  std::int32_t lu[64];
};
QUORVEL_RECORD(PoolLUListRequest, 260);

/// A virtual volume.
struct VvolDetailInformation {
  std::int32_t lun;
  std::int32_t capacity_specify;
  std::int32_t capacity_h;
  std::int32_t capacity_l;
};
QUORVEL_RECORD(VvolDetailInformation, 16);

struct VvolInformation {
  std::int32_t vvol_count;
  VvolDetailInformation lu[8192];
};
QUORVEL_RECORD(VvolInformation, 131076);

/// An LU as a part of an integrated one, with the numbers of its children.
struct UniteLU {
  std::int32_t unite_info;
  std::int32_t status;
  std::int32_t capacity;
  std::int32_t child_lu_count;
  std::int32_t child_lun[512];
};
QUORVEL_RECORD(UniteLU, 2064);
QUORVEL_OFFSET(UniteLU, child_lun, 16);

struct IntegrationLUInfo {
  std::int32_t integration_lu;
  UniteLU unite_info[512];
};
QUORVEL_RECORD(IntegrationLUInfo, 1056772);

/// An LU as a part of an integrated one, with the number of the part behind it.
struct UniteLU2 {
  std::int32_t unite_info;
  std::int32_t status;
  std::int32_t capacity;
  std::int32_t capacity_h;
  std::int32_t capacity_l;
  std::int32_t child_lu_count;
  std::int32_t next_lun;
};
QUORVEL_RECORD(UniteLU2, 28);

struct IntegrationLUInfo2 {
  std::int32_t integration_lu;
  std::int32_t parent_count;
  std::int32_t parent_lu[8192];
  UniteLU2 unite_info[8192];
};
QUORVEL_RECORD(IntegrationLUInfo2, 262152);
QUORVEL_OFFSET(IntegrationLUInfo2, parent_lu, 8);
QUORVEL_OFFSET(IntegrationLUInfo2, unite_info, 32776);

/// An operation on integrated LUs.
struct IntegrationRequest {
  std::int32_t operation;
  std::int32_t parent_lun;
  std::int32_t child_lun;
  std::int32_t child_count;
  std::int32_t child_lu[127];
};
QUORVEL_RECORD(IntegrationRequest, 524);
QUORVEL_OFFSET(IntegrationRequest, child_lu, 16);

/// A data-management LU.
struct DMLUDetail {
  std::int32_t dmlu_valid;
  std::int32_t set_valid;
  std::int32_t dmlu_lu;
};
QUORVEL_RECORD(DMLUDetail, 12);

struct DMLUInformation {
  std::int32_t mode;
  std::int32_t dmlu_count;
  DMLUDetail dmlu[2];
};
QUORVEL_RECORD(DMLUInformation, 32);

/// The guard of an LU.
struct LuGuard {
  std::int32_t lu_valid;
  std::int32_t capacity;
  std::int32_t capacity_h;
  std::int32_t capacity_l;
  std::int32_t access_level_valid;
  std::int32_t access_level_status;
  std::int32_t access_level;
  std::int32_t svol_disable;
  std::int32_t access_inhibit_mode;
  std::int32_t access_attr;
  std::int32_t changeable_attr;
  std::int32_t retention_term;
};
QUORVEL_RECORD(LuGuard, 48);

struct LuGuardInformation {
  std::int32_t option;
  std::int32_t expirationlock;
  LuGuard lu[8192];
};
QUORVEL_RECORD(LuGuardInformation, 393224);
QUORVEL_OFFSET(LuGuardInformation, lu, 8);

/// An LU's new access level, and for how long.
struct LuAccessLevelRequest {
  std::int32_t lu;
  std::int32_t access_level;
  std::int32_t retention_term;
};
QUORVEL_RECORD(LuAccessLevelRequest, 12);

/// The Turbo LU parameters.
struct TurboLu {
  std::int32_t opaque[11];
};
QUORVEL_RECORD(TurboLu, 44);
QUORVEL_ASSUMED(TurboLu);

QUORVEL_API int QV_GetPoolInformation(const UnitName* unit, const QVSessionInfo* session,
                                      PoolInfo* info);
QUORVEL_API int QV_ChangePoolInformation(const UnitName* unit, const QVSessionInfo* session,
                                         const PoolChangeRequest* request);
QUORVEL_API int QV_PoolLUAdd(const UnitName* unit, const QVSessionInfo* session, std::int32_t first,
                             std::int32_t second, std::int32_t third);
QUORVEL_API int QV_PoolLUAddList(const UnitName* unit, const QVSessionInfo* session,
                                 std::int32_t controller, std::int32_t pool,
                                 const PoolLUListRequest* list);
QUORVEL_ASSUMED_FUNCTION(QV_PoolLUAddList);
QUORVEL_API int QV_PoolLUAllDelete(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t first, std::int32_t second);
QUORVEL_API int QV_CreateVVOL(const UnitName* unit, const QVSessionInfo* session,
                              std::int32_t first, std::int32_t second, std::int32_t third);
QUORVEL_API int QV_CreateVVOLEx(const UnitName* unit, const QVSessionInfo* session,
                                const VvolDetailInformation* volume);
QUORVEL_API int QV_DeleteVVOL(const UnitName* unit, const QVSessionInfo* session,
                              std::int32_t first, std::int32_t second);
QUORVEL_API int QV_GetVVOLInformation(const UnitName* unit, const QVSessionInfo* session,
                                      VvolInformation* information);
QUORVEL_API int QV_IntegrationLUInfo(const UnitName* unit, IntegrationLUInfo* info);
QUORVEL_API int QV_IntegrationLUInfo2(const UnitName* unit, const QVSessionInfo* session,
                                      IntegrationLUInfo2* info);
QUORVEL_API int QV_SetIntegrationLU(const UnitName* unit, const QVSessionInfo* session,
                                    const IntegrationRequest* request);
QUORVEL_API int QV_GetDMLU(const UnitName* unit, const QVSessionInfo* session,
                           DMLUInformation* information);
QUORVEL_API int QV_SetDMLU(const UnitName* unit, const QVSessionInfo* session,
                           const DMLUInformation* information);
QUORVEL_API int QV_GetLuGuardInformation(const UnitName* unit, const QVSessionInfo* session,
                                         LuGuardInformation* information);
QUORVEL_API int QV_SetLuAccessLevel(const UnitName* unit, const QVSessionInfo* session,
                                    const LuAccessLevelRequest* request);
QUORVEL_API int QV_SetSvolDisableMode(const UnitName* unit, const QVSessionInfo* session,
                                      std::int32_t first, std::int32_t second);
QUORVEL_API int QV_ExtendRetentionTerm(const UnitName* unit, const QVSessionInfo* session,
                                       std::int32_t first, std::int32_t second);
QUORVEL_API int QV_SetExpirationLock(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t value);
QUORVEL_API int QV_GetTurboLU(const UnitName* unit, const QVSessionInfo* session, TurboLu* turbo);
QUORVEL_ASSUMED_FUNCTION(QV_GetTurboLU);
QUORVEL_API int QV_SetTurboLU(const UnitName* unit, const QVSessionInfo* session,
                              const TurboLu* turbo);
QUORVEL_ASSUMED_FUNCTION(QV_SetTurboLU);
