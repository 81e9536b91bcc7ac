#pragma once

#include "arraylib/accounts.h"
#include "arraylib/hosts.h"
#include "arraylib/record.h"
#include "arraylib/replication.h"
#include "arraylib/status.h"
#include "arraylib/storage.h"
#include "arraylib/units.h"

// The whole array in one record, and thematic slices of it. Their members are the records of the
// other subsystems.

// Records of which only the size is known: what is inside is left alone.

struct PrefetchInformation {
  std::int32_t opaque[5];
};
QUORVEL_RECORD(PrefetchInformation, 20);
QUORVEL_ASSUMED(PrefetchInformation);

struct OnlineVerify {
  std::int32_t opaque[3];
};
QUORVEL_RECORD(OnlineVerify, 12);
QUORVEL_ASSUMED(OnlineVerify);

struct NowWZParameter {
  std::int32_t opaque[12];
};
QUORVEL_RECORD(NowWZParameter, 48);
QUORVEL_ASSUMED(NowWZParameter);

struct BootOption {
  std::int32_t opaque[14];
};
QUORVEL_RECORD(BootOption, 56);
QUORVEL_ASSUMED(BootOption);

struct OnlineSystemParam {
  std::int32_t opaque[21];
};
QUORVEL_RECORD(OnlineSystemParam, 84);
QUORVEL_ASSUMED(OnlineSystemParam);

struct OnlineTuningParam {
  std::int32_t opaque[525];
};
QUORVEL_RECORD(OnlineTuningParam, 2100);
QUORVEL_ASSUMED(OnlineTuningParam);

struct TuningParam {
  std::int32_t opaque[4];
};
QUORVEL_RECORD(TuningParam, 16);
QUORVEL_ASSUMED(TuningParam);

struct PrefetchTuning {
  std::int32_t opaque[57353];
};
QUORVEL_RECORD(PrefetchTuning, 229412);
QUORVEL_ASSUMED(PrefetchTuning);

struct CachePartition {
  std::int32_t opaque[903];
};
QUORVEL_RECORD(CachePartition, 3612);
QUORVEL_ASSUMED(CachePartition);

struct TimeZoneList {
  std::int32_t opaque[3301];
};
QUORVEL_RECORD(TimeZoneList, 13204);
QUORVEL_ASSUMED(TimeZoneList);

struct NASSystemLUAll {
  std::int32_t opaque[51];
};
QUORVEL_RECORD(NASSystemLUAll, 204);
QUORVEL_ASSUMED(NASSystemLUAll);

struct NASUserLUAll {
  std::int32_t opaque[8193];
};
QUORVEL_RECORD(NASUserLUAll, 32772);
QUORVEL_ASSUMED(NASUserLUAll);

struct NASOSStatusList {
  std::int32_t opaque[12];
};
QUORVEL_RECORD(NASOSStatusList, 48);
QUORVEL_ASSUMED(NASOSStatusList);

struct UnitPowerSavingInfo {
  std::int32_t opaque[187];
};
QUORVEL_RECORD(UnitPowerSavingInfo, 748);
QUORVEL_ASSUMED(UnitPowerSavingInfo);

struct ArrayAllInformation {
  UnitCondition unit_conditions[2];
  DiskDrive drive_status[450];
  DiskDriveInformation drive_info[450];
  RaidGroup raid[90];
  RaidGroupInformation raid_info;
  LogicalUnit lu[4096];
  CouplingInfo lu_coup;
  IntegrationLUInfo integration_lu;
  IntegrationLUInfo2 integration_lu2;
  TurboLu turbo_lu;
  DMLUInformation dm_lu;
  TargetId target_id[2][2];
  LANInformation lan_info[2];
  QVUserLANInformation qvuser_lan_info;
  SyncControl sync_ctrl[2];
  DiskDriveRestoration rest_info;
  PrefetchInformation prefetch_info;
  OnlineVerify verify;
  FibreInformation fibre_info[2];
  QVUserRegist user_reg_info;
  std::byte reserved[50][76];
  CommandDevice comdev;
  NowWZParameter on_opt[2];
  RvrfSrcInfo rvrfsrc;
  UnitInformation unit_info;
  std::int32_t alert[2];
  HGList hg;
  HGOption hgopt;
  PortOption portopt;
  LuMapping lumap;
  WWNInformation wwn;
  WWNHGInformation wwnhg;
  BootOption boot_opt;
  OnlineSystemParam on_sysparam;
  LANPortNumber port_num;
  OnlineTuningParam on_tuning;
  TuningParam tuning;
  PrefetchTuning pre_tuning;
  PoolInfo pool_info;
  PairInfo pair_info;
  LuGuardInformation luguard;
  QuickFormatOption quickfmtopt;
  QuickFormatStatusList quickfmtstatus;
  HGParameterList hgparamlist;
  ParityCorrectionStatusList correctstatus;
  ZencopyInformation zencopy;
  MappingGuardList mapguard;
  UnitIdentifier unit_identifier;
  FarlinkPairInformation farlink_info;
  FarlinkAsyncPairInformation flacopy_info;
  FarlinkAsyncOption flaopt_info;
  CachePartition cache_prt;
  TimeZoneList timezonelist;
  TimeInfo timeinfo;
  NASSystemLUAll systemluall;
  NASUserLUAll userluall;
  MainteLanInfo maintelaninfo;
  MainteLanAvailableList mainte_avail;
  NNCLANInformation nnclaninfo;
  NASOSStatusList nasosstatus;
  QViSCSIPortInformation iscsi_port;
  QViSCSITargetInformationAll iscsi_target;
  QViSCSIInitiatorInformationAll iscsi_initiator;
  QViSCSILoginInitiatorInformationAll iscsi_logininitiator;
  QViSCSICHAPUserInformationAll chap_user;
  QViSNSInformation isns;
  DriveResponseDiag drive_response_diag;
  QVAuditLogInformation auditlog_info;
  LuMigrationInformation lu_migration;
  QVAccountRoleInformation role;
  QVAccountInfoList account;
  AccountOption account_option;
  SpinDownUpInformation spin_downup;
  std::int32_t cfg;
  std::int32_t ctrl_condition[2];
  std::int32_t last_lu;
};
QUORVEL_RECORD(ArrayAllInformation, 76038764);
QUORVEL_OFFSET(ArrayAllInformation, drive_status, 3680);
QUORVEL_OFFSET(ArrayAllInformation, drive_info, 18080);
QUORVEL_OFFSET(ArrayAllInformation, raid, 59480);
QUORVEL_OFFSET(ArrayAllInformation, raid_info, 64520);
QUORVEL_OFFSET(ArrayAllInformation, lu, 104524);
QUORVEL_OFFSET(ArrayAllInformation, lu_coup, 497740);
QUORVEL_OFFSET(ArrayAllInformation, integration_lu, 1939540);
QUORVEL_OFFSET(ArrayAllInformation, integration_lu2, 2996312);
QUORVEL_OFFSET(ArrayAllInformation, turbo_lu, 3258464);
QUORVEL_OFFSET(ArrayAllInformation, dm_lu, 3258508);
QUORVEL_OFFSET(ArrayAllInformation, target_id, 3258540);
QUORVEL_OFFSET(ArrayAllInformation, lan_info, 3291612);
QUORVEL_OFFSET(ArrayAllInformation, qvuser_lan_info, 3291772);
QUORVEL_OFFSET(ArrayAllInformation, sync_ctrl, 3292784);
QUORVEL_OFFSET(ArrayAllInformation, rest_info, 3292800);
QUORVEL_OFFSET(ArrayAllInformation, prefetch_info, 3292828);
QUORVEL_OFFSET(ArrayAllInformation, verify, 3292848);
QUORVEL_OFFSET(ArrayAllInformation, fibre_info, 3292860);
QUORVEL_OFFSET(ArrayAllInformation, user_reg_info, 3903372);
QUORVEL_OFFSET(ArrayAllInformation, reserved, 3903380);
QUORVEL_OFFSET(ArrayAllInformation, comdev, 3907180);
QUORVEL_OFFSET(ArrayAllInformation, on_opt, 3909272);
QUORVEL_OFFSET(ArrayAllInformation, rvrfsrc, 3909368);
QUORVEL_OFFSET(ArrayAllInformation, unit_info, 3911128);
QUORVEL_OFFSET(ArrayAllInformation, alert, 3911636);
QUORVEL_OFFSET(ArrayAllInformation, hg, 3911644);
QUORVEL_OFFSET(ArrayAllInformation, hgopt, 3981296);
QUORVEL_OFFSET(ArrayAllInformation, portopt, 4128340);
QUORVEL_OFFSET(ArrayAllInformation, lumap, 4128484);
QUORVEL_OFFSET(ArrayAllInformation, wwn, 37551984);
QUORVEL_OFFSET(ArrayAllInformation, wwnhg, 37849044);
QUORVEL_OFFSET(ArrayAllInformation, boot_opt, 38004824);
QUORVEL_OFFSET(ArrayAllInformation, on_sysparam, 38004880);
QUORVEL_OFFSET(ArrayAllInformation, port_num, 38004964);
QUORVEL_OFFSET(ArrayAllInformation, on_tuning, 38005004);
QUORVEL_OFFSET(ArrayAllInformation, tuning, 38007104);
QUORVEL_OFFSET(ArrayAllInformation, pre_tuning, 38007120);
QUORVEL_OFFSET(ArrayAllInformation, pool_info, 38236532);
QUORVEL_OFFSET(ArrayAllInformation, pair_info, 38255820);
QUORVEL_OFFSET(ArrayAllInformation, luguard, 64589240);
QUORVEL_OFFSET(ArrayAllInformation, quickfmtopt, 64982464);
QUORVEL_OFFSET(ArrayAllInformation, quickfmtstatus, 64982480);
QUORVEL_OFFSET(ArrayAllInformation, hgparamlist, 65113560);
QUORVEL_OFFSET(ArrayAllInformation, correctstatus, 65438128);
QUORVEL_OFFSET(ArrayAllInformation, zencopy, 65536432);
QUORVEL_OFFSET(ArrayAllInformation, mapguard, 65651128);
QUORVEL_OFFSET(ArrayAllInformation, unit_identifier, 65659320);
QUORVEL_OFFSET(ArrayAllInformation, farlink_info, 65659360);
QUORVEL_OFFSET(ArrayAllInformation, flacopy_info, 66806248);
QUORVEL_OFFSET(ArrayAllInformation, flaopt_info, 68478832);
QUORVEL_OFFSET(ArrayAllInformation, cache_prt, 68478864);
QUORVEL_OFFSET(ArrayAllInformation, timezonelist, 68482476);
QUORVEL_OFFSET(ArrayAllInformation, timeinfo, 68495680);
QUORVEL_OFFSET(ArrayAllInformation, systemluall, 68496340);
QUORVEL_OFFSET(ArrayAllInformation, userluall, 68496544);
QUORVEL_OFFSET(ArrayAllInformation, maintelaninfo, 68529316);
QUORVEL_OFFSET(ArrayAllInformation, mainte_avail, 68530636);
QUORVEL_OFFSET(ArrayAllInformation, nnclaninfo, 68531188);
QUORVEL_OFFSET(ArrayAllInformation, nasosstatus, 68531964);
QUORVEL_OFFSET(ArrayAllInformation, iscsi_port, 68532012);
QUORVEL_OFFSET(ArrayAllInformation, iscsi_target, 68534700);
QUORVEL_OFFSET(ArrayAllInformation, iscsi_initiator, 70852400);
QUORVEL_OFFSET(ArrayAllInformation, iscsi_logininitiator, 72081460);
QUORVEL_OFFSET(ArrayAllInformation, chap_user, 73015540);
QUORVEL_OFFSET(ArrayAllInformation, isns, 75735544);
QUORVEL_OFFSET(ArrayAllInformation, drive_response_diag, 75736440);
QUORVEL_OFFSET(ArrayAllInformation, auditlog_info, 75736464);
QUORVEL_OFFSET(ArrayAllInformation, lu_migration, 75736568);
QUORVEL_OFFSET(ArrayAllInformation, role, 75916760);
QUORVEL_OFFSET(ArrayAllInformation, account, 75924988);
QUORVEL_OFFSET(ArrayAllInformation, account_option, 75936416);
QUORVEL_OFFSET(ArrayAllInformation, spin_downup, 75936432);
QUORVEL_OFFSET(ArrayAllInformation, cfg, 76038748);
QUORVEL_OFFSET(ArrayAllInformation, ctrl_condition, 76038752);
QUORVEL_OFFSET(ArrayAllInformation, last_lu, 76038760);

struct ArrayAllInfo_Base {
  std::int32_t valid_index;
  UnitCondition unit_conditions[2];
  UnitInformation unit_info;
  std::int32_t alert[2];
  std::int32_t alert_sa;
  std::int32_t ctrl_condition[2];
  DiskDriveStatusAll diskdrive_status;
  DiskDriveInformationAll diskdrive_info;
  std::int32_t rec_status_valid;
  DriveReconstructInformation rec_status;
  RaidGroupInformation raid_info;
  LogicalUnit lu[8192];
  CommandDevice comdev;
  DMLUInformation dm_lu;
  QuickFormatStatusList quickfmtstatus;
  ParityCorrectionStatusList correctstatus;
  IntegrationLUInfo2 integration_lu2;
  std::byte reserved[50][76];
  std::int32_t mapping_mode;
  BatteryConfig battery_config;
  LocateLEDInformation localled_info;
  std::int32_t connectedCTL;
};
QUORVEL_RECORD(ArrayAllInfo_Base, 1552072);
QUORVEL_ASSUMED(ArrayAllInfo_Base);

struct ArrayAllInfo_BaseAdditional {
  std::int32_t valid_index;
  HGParameterID hgparamid[2];
  HGParameterList2 hgparamlist2;
  CachePartition cache_prt;
  CTLPortKind ctlportkind;
  LuMappingPortAssignInfo lumap_lun;
};
QUORVEL_RECORD(ArrayAllInfo_BaseAdditional, 98804);
QUORVEL_ASSUMED(ArrayAllInfo_BaseAdditional);

struct ArrayAllInfo_HG {
  std::int32_t valid_index;
  HGList hg;
  WWNHGInformation wwnhg;
};
QUORVEL_RECORD(ArrayAllInfo_HG, 225436);
QUORVEL_ASSUMED(ArrayAllInfo_HG);

struct ArrayAllInfo_iSCSI {
  std::int32_t valid_index;
  QViSCSIPortInformation iscsi_port;
  QViSCSITargetInformationAll iscsi_target;
  QViSCSIInitiatorInformationAll iscsi_initiator;
  QViSCSILoginInitiatorInformationAll iscsi_logininitiator;
  QViSCSICHAPUserInformationAll chap_user;
  QViSNSInformation isns;
};
QUORVEL_RECORD(ArrayAllInfo_iSCSI, 7204432);
QUORVEL_ASSUMED(ArrayAllInfo_iSCSI);

struct ArrayAllInfo_Mapping {
  std::int32_t valid_index;
  MappingGuardList mapguard;
  LuMapping lumap;
};
QUORVEL_RECORD(ArrayAllInfo_Mapping, 33431696);
QUORVEL_ASSUMED(ArrayAllInfo_Mapping);

struct ArrayAllInfo_Host {
  std::int32_t valid_index;
  HGOption hgopt;
  HGParameterID hgparamid[2];
  HGParameterList2 hgparamlist2;
};
QUORVEL_RECORD(ArrayAllInfo_Host, 176692);
QUORVEL_ASSUMED(ArrayAllInfo_Host);

struct ArrayAllInfo_Config {
  std::int32_t valid_index;
  FibreInformation fibre_info[2];
  PortOption portopt;
  QVUserLANInformation qvuser_lan_info;
  LANPortNumber port_num;
  MainteLanInfo maintelaninfo;
  MainteLanAvailableList mainte_avail;
  TimeZoneList timezonelist;
  TimeInfo timeinfo;
  DiskDriveRestoration rest_info;
  OnlineVerify verify;
  BootOption boot_opt;
  OnlineSystemParam on_sysparam;
  QuickFormatOption quickfmtopt;
  std::byte reserved[4];
};
QUORVEL_RECORD(ArrayAllInfo_Config, 627648);
QUORVEL_ASSUMED(ArrayAllInfo_Config);

struct ArrayAllInfo_PP {
  std::int32_t valid_index;
  TurboLu turbo_lu;
  QVUserRegist user_reg_info;
  LuGuardInformation luguard;
  CachePartition cache_prt;
  QVAuditLogInformation auditlog_info;
  QVAccountRoleInformation role;
  QVAccountInfoList account;
  AccountOption account_option;
  LuMigrationInformation lu_migration;
  SpinDownUpInformation spin_downup;
  UnitPowerSavingInfo unit_powersaving;
};
QUORVEL_RECORD(ArrayAllInfo_PP, 699924);
QUORVEL_ASSUMED(ArrayAllInfo_PP);

struct ArrayAllInfo_Replication {
  std::int32_t valid_index;
  PoolInfo pool_info;
  RvrfSrcInfo rvrfsrc;
  FarlinkAsyncOption flaopt_info;
  VvolInformation vvol_info;
  CTGInformation ctg_def;
  CouplingInfo lu_coup;
  PairInfo pair_info;
  FarlinkPairInformation farlink_info;
  FarlinkAsyncPairInformation flacopy_info;
  QViSCSIRemotePathInfo iscsi_rmt;
};
QUORVEL_RECORD(ArrayAllInfo_Replication, 30774116);
QUORVEL_ASSUMED(ArrayAllInfo_Replication);

struct ArrayAllInfo_Tuning {
  std::int32_t valid_index;
  OnlineTuningParam on_tuning;
  PrefetchTuning pre_tuning;
  LuOwnership luowner;
};
QUORVEL_RECORD(ArrayAllInfo_Tuning, 460896);
QUORVEL_ASSUMED(ArrayAllInfo_Tuning);

QUORVEL_API int QV_GetAllInformation(const UnitName* unit, const QVSessionInfo* session,
                                     ArrayAllInformation* information);
QUORVEL_API int QV_GetAllInfo_Base(const UnitName* unit, const QVSessionInfo* session,
                                   const ControllerRequest* request,
                                   ArrayAllInfo_Base* information);
QUORVEL_API int QV_GetAllInfo_BaseAdditional(const UnitName* unit, const QVSessionInfo* session,
                                             const ControllerRequest* request,
                                             ArrayAllInfo_BaseAdditional* information);
QUORVEL_API int QV_GetAllInfo_HG(const UnitName* unit, const QVSessionInfo* session,
                                 const ControllerRequest* request, ArrayAllInfo_HG* information);
QUORVEL_API int QV_GetAllInfo_iSCSI(const UnitName* unit, const QVSessionInfo* session,
                                    const ControllerRequest* request,
                                    ArrayAllInfo_iSCSI* information);
QUORVEL_API int QV_GetAllInfo_Mapping(const UnitName* unit, const QVSessionInfo* session,
                                      const ControllerRequest* request,
                                      ArrayAllInfo_Mapping* information);
QUORVEL_API int QV_GetAllInfo_Host(const UnitName* unit, const QVSessionInfo* session,
                                   const ControllerRequest* request,
                                   ArrayAllInfo_Host* information);
QUORVEL_API int QV_GetAllInfo_Config(const UnitName* unit, const QVSessionInfo* session,
                                     const ControllerRequest* request,
                                     ArrayAllInfo_Config* information);
QUORVEL_API int QV_GetAllInfo_PP(const UnitName* unit, const QVSessionInfo* session,
                                 const ControllerRequest* request, ArrayAllInfo_PP* information);
QUORVEL_API int QV_GetAllInfo_Replication(const UnitName* unit, const QVSessionInfo* session,
                                          const ControllerRequest* request,
                                          ArrayAllInfo_Replication* information);
QUORVEL_API int QV_GetAllInfo_Tuning(const UnitName* unit, const QVSessionInfo* session,
                                     const ControllerRequest* request,
                                     ArrayAllInfo_Tuning* information);
