#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"
#include "arraylib/times.h"

// Replication and migration: copy pairs of four kinds (Gemlyn and SnapShot inside an array, Farlink
// and Longlink to another one), what remote copies need around them, and moving logical units.

// Copy pairs: operations

/// The consistency group that an operation names.
struct SpecifyCTGInfo {
  std::int32_t ctg_set_flag;
  std::int32_t ctg_no;
  char ctg_name[32];
};
QUORVEL_RECORD(SpecifyCTGInfo, 40);

/// The pair that an operation names.
struct SpecifyPairInfo {
  std::int32_t pair_set_flag;
  char pair_name[32];
  std::int32_t pvol_lun;
  std::int32_t pair_lun;
};
QUORVEL_RECORD(SpecifyPairInfo, 44);

/// What an operation is on: how every record of an operation begins.
struct PairTarget {
  std::int32_t set_division;
  std::int32_t ctg_valid;
  SpecifyCTGInfo ctg_info;
  SpecifyPairInfo pair_info;
};
QUORVEL_PART(PairTarget, 92);
QUORVEL_OFFSET(PairTarget, ctg_info, 8);
QUORVEL_OFFSET(PairTarget, pair_info, 48);

/// An operation on a pair inside an array that needs no more than its target.
struct PairOperation {
  PairTarget target;
};
QUORVEL_RECORD(PairOperation, 92);

struct CreateGemlynPair {
  PairTarget target;
  std::int32_t copy_speed;
  std::int32_t auto_split;
  std::int32_t no_read;
  std::int32_t no_copy;
};
QUORVEL_RECORD(CreateGemlynPair, 108);

struct SplitGemlynPair {
  PairTarget target;
  std::int32_t forced_split;
  char add_message[32];
};
QUORVEL_RECORD(SplitGemlynPair, 128);

struct CreateSnapShotPair {
  PairTarget target;
  std::int32_t local_pool_no;
  std::int32_t copy_speed;
  std::int32_t auto_split;
};
QUORVEL_RECORD(CreateSnapShotPair, 104);

struct SplitSnapShotPair {
  PairTarget target;
  char add_message[32];
};
QUORVEL_RECORD(SplitSnapShotPair, 124);

struct CreateFarlinkPair {
  PairTarget target;
  std::int32_t pvol_lu_device;
  char remote_serial[9];
  std::int32_t copy_speed;
  std::int32_t fence_lv;
  std::int32_t no_copy;
};
QUORVEL_RECORD(CreateFarlinkPair, 120);
QUORVEL_OFFSET(CreateFarlinkPair, remote_serial, 96);
QUORVEL_OFFSET(CreateFarlinkPair, copy_speed, 108);

struct SplitFarlinkPair {
  PairTarget target;
  char remote_serial[9];
  std::int32_t access_restrict;
  std::int32_t forced_rw;
};
QUORVEL_RECORD(SplitFarlinkPair, 112);
QUORVEL_OFFSET(SplitFarlinkPair, access_restrict, 104);

struct CreateLonglinkPair {
  PairTarget target;
  std::int32_t pvol_lu_device;
  char remote_serial[9];
  std::int32_t auto_set;
  std::int32_t local_pool_no;
  std::int32_t remote_pool_no;
  std::int32_t copy_speed;
  std::int32_t no_copy;
};
QUORVEL_RECORD(CreateLonglinkPair, 128);
QUORVEL_OFFSET(CreateLonglinkPair, remote_serial, 96);
QUORVEL_OFFSET(CreateLonglinkPair, auto_set, 108);

struct SplitLonglinkPair {
  PairTarget target;
  char remote_serial[9];
  std::int32_t access_restrict;
  std::int32_t cascade_vvol_split;
};
QUORVEL_RECORD(SplitLonglinkPair, 112);
QUORVEL_OFFSET(SplitLonglinkPair, access_restrict, 104);

struct SimpleRemotePair {
  PairTarget target;
  char remote_serial[9];
  std::int32_t simple_range;
};
QUORVEL_RECORD(SimpleRemotePair, 108);
QUORVEL_OFFSET(SimpleRemotePair, simple_range, 104);

/// An operation on a remote pair that needs no more than its target and the other array.
struct RemotePairOperation {
  PairTarget target;
  char remote_serial[9];
};
QUORVEL_RECORD(RemotePairOperation, 104);

/// The attributes of a pair to change.
struct PairChange {
  std::int32_t ctg_copytype;
  std::int32_t ctg_valid;
  SpecifyCTGInfo ctg_info;
  SpecifyPairInfo pair_info;
  std::int32_t pair_attr;
  char remote_serial[9];
  char new_pair_name[32];
  std::int32_t copy_speed;
};
QUORVEL_RECORD(PairChange, 144);
QUORVEL_OFFSET(PairChange, pair_attr, 92);
QUORVEL_OFFSET(PairChange, remote_serial, 96);
QUORVEL_OFFSET(PairChange, new_pair_name, 105);
QUORVEL_OFFSET(PairChange, copy_speed, 140);

struct LuMigrationRequestPairInfo {
  std::int32_t pvol_lun;
  std::int32_t svol_lun;
  std::int32_t copying_pace;
};
QUORVEL_RECORD(LuMigrationRequestPairInfo, 12);

/// Pairs of a migration, and at what pace they are to be copied.
struct LuMigrationRequest {
  std::int32_t request_pair_count;
  std::int32_t owner_id;
  LuMigrationRequestPairInfo lu[4095];
};
QUORVEL_RECORD(LuMigrationRequest, 49'148);

// Copy pairs: information

struct PoolDetailCapa {
  std::int32_t pool_no;
  std::int32_t poolcapa_h;
  std::int32_t poolcapa_l;
};
QUORVEL_RECORD(PoolDetailCapa, 12);

/// The capacity of a controller's pool.
struct PoolCtlCapa {
  std::int32_t pool_enable_count;
  PoolDetailCapa pool[1];
};
QUORVEL_RECORD(PoolCtlCapa, 16);

/// The capacity of the system's pools.
struct PoolSysCapa {
  std::int32_t pool_enable_count;
  PoolDetailCapa pool[64];
};
QUORVEL_RECORD(PoolSysCapa, 772);

/// A pair, as its primary logical unit sees it.
struct MirrorLUInfo {
  std::int32_t mirror_no;
  std::int32_t lun;
  std::int32_t ctl_no;
  std::int32_t pool_no;
  std::int32_t pair_status;
  std::int32_t pair_status_detail;
  std::int32_t usedcapa;
  std::int32_t usedcapa_h;
  std::int32_t usedcapa_l;
  std::int32_t changed_rate;
  std::int32_t synchronized_rate;
  PairCreateTime time;
  DateTime split_time;
  char add_message[32];
  std::int32_t ctg_valid;
  std::int32_t ctg_no;
  char ctg_name[32];
  char pair_name[32];
  std::int32_t copy_speed;
};
QUORVEL_RECORD(MirrorLUInfo, 200);
QUORVEL_OFFSET(MirrorLUInfo, time, 44);
QUORVEL_OFFSET(MirrorLUInfo, split_time, 68);
QUORVEL_OFFSET(MirrorLUInfo, add_message, 92);
QUORVEL_OFFSET(MirrorLUInfo, ctg_valid, 124);
QUORVEL_OFFSET(MirrorLUInfo, copy_speed, 196);

/// A primary logical unit and its pairs.
struct PairLUInfo {
  std::int32_t lun;
  std::int32_t capacity;
  std::int32_t capacity_h;
  std::int32_t capacity_l;
  std::int32_t pool_usedcapa_h;
  std::int32_t pool_usedcapa_l;
  std::int32_t pool_usedrate;
  std::int32_t mirror_count;
  MirrorLUInfo m_info[32];
};
QUORVEL_RECORD(PairLUInfo, 6432);

/// All pairs inside an array.
struct PairInfo {
  std::int32_t option;
  PoolCtlCapa ctl[2];
  PoolSysCapa sys;
  std::int32_t pair_count;
  PairLUInfo lu[4094];
};
QUORVEL_RECORD(PairInfo, 26'333'420);
QUORVEL_OFFSET(PairInfo, sys, 36);
QUORVEL_OFFSET(PairInfo, pair_count, 808);
QUORVEL_OFFSET(PairInfo, lu, 812);

struct PairLUInfoSimple {
  std::int32_t pvol_lun;
  std::int32_t svol_lun;
};
QUORVEL_RECORD(PairLUInfoSimple, 8);

/// Which logical units are paired.
struct PairInfoSimple {
  std::int32_t option;
  std::int32_t pair_count;
  PairLUInfoSimple pair[4094];
};
QUORVEL_RECORD(PairInfoSimple, 32'760);

struct FarlinkLuInfo {
  std::int32_t support_index;
  std::int32_t valid_index;
  std::int32_t lun;
  std::int32_t pair_status;
  std::int32_t pair_status_detail;
  std::int32_t pair_attr;
  std::int32_t changed_rate;
  char remote_serial[20];
  std::int32_t remote_lu;
  std::int32_t capacity_h;
  std::int32_t capacity_l;
  std::int32_t ctg_valid;
  std::int32_t ctg_no;
  char ctg_name[32];
  char pair_name[32];
  std::int32_t copy_speed;
  std::int32_t fence_level;
};
QUORVEL_RECORD(FarlinkLuInfo, 140);
QUORVEL_OFFSET(FarlinkLuInfo, remote_serial, 28);
QUORVEL_OFFSET(FarlinkLuInfo, ctg_name, 68);
QUORVEL_OFFSET(FarlinkLuInfo, copy_speed, 132);

/// The Farlink pairs of an array.
struct FarlinkPairInformation {
  std::int32_t option;
  std::int32_t pair_count;
  FarlinkLuInfo lu[8192];
};
QUORVEL_RECORD(FarlinkPairInformation, 1'146'888);

struct FarlinkAsyncLuInfo {
  std::int32_t lun;
  std::int32_t pair_status;
  std::int32_t pair_status_dist_flag;
  std::int32_t pair_attr;
  std::int32_t ctg_num;
  char ctg_name[32];
  char pair_name[32];
  std::int32_t lu_capacity;
  std::int32_t lu_capacity_h;
  std::int32_t lu_capacity_l;
  std::int32_t remote_lu;
  char remote_serial[20];
  std::int32_t member_valid;
  std::int32_t synchronized_rate;
  std::int32_t difference_capacity;
  std::int32_t difference_capacity_h;
  std::int32_t difference_capacity_l;
  std::int32_t difference_rate;
  DateTime synchronized_time;
  std::int32_t pool_no;
  std::int32_t pool_usedrate;
  std::int32_t copy_speed;
  std::int32_t fence_level;
  std::int32_t synchronized_sequence_no;
  std::int32_t svol_synchronized_sequence_no;
  std::int32_t pvol_resync_count;
  std::int32_t svol_resync_count;
  std::int32_t cycle_time;
};
QUORVEL_RECORD(FarlinkAsyncLuInfo, 204);
QUORVEL_OFFSET(FarlinkAsyncLuInfo, lu_capacity, 84);
QUORVEL_OFFSET(FarlinkAsyncLuInfo, member_valid, 120);
QUORVEL_OFFSET(FarlinkAsyncLuInfo, synchronized_time, 144);
QUORVEL_OFFSET(FarlinkAsyncLuInfo, cycle_time, 200);

/// The transfer of a consistency group through one controller.
struct FarlinkAsyncCTGCTLInfo {
  std::int32_t ctg_valid;
  QVApiTime lapsed_time;
  std::int32_t remains_difference;
  std::int32_t rate_status;
  std::int32_t transfer_rate;
  std::int32_t prediction_status;
  QVApiTime prediction_time;
};
QUORVEL_RECORD(FarlinkAsyncCTGCTLInfo, 44);

struct FarlinkAsyncCTGInfo {
  FarlinkAsyncCTGCTLInfo ctl[2];
};
QUORVEL_RECORD(FarlinkAsyncCTGInfo, 88);

/// The asynchronous Farlink pairs of an array, and their consistency groups.
struct FarlinkAsyncPairInformation {
  std::int32_t option;
  std::int32_t pair_count;
  FarlinkAsyncLuInfo lu[8192];
  FarlinkAsyncCTGInfo ctg[16];
};
QUORVEL_RECORD(FarlinkAsyncPairInformation, 1'672'584);
QUORVEL_OFFSET(FarlinkAsyncPairInformation, ctg, 1'671'176);

/// The settings of asynchronous Farlink pairs.
struct FarlinkAsyncOption {
  std::int32_t option;
  std::int32_t support_index;
  std::int32_t valid_index;
  std::int32_t ctrl_flag;
  std::int32_t set_index;
  std::int32_t cycle_time;
  std::int32_t cycle_time_message;
  std::int32_t queue_inhibit_time;
};
QUORVEL_RECORD(FarlinkAsyncOption, 32);

struct ZencopyLuInfo {
  std::int32_t lun;
  std::int32_t pair_status;
  std::int32_t pair_attr;
  std::int32_t changed_rate;
  char remote_type[17];
  char remote_serial[17];
  char remote_ldev[6];
};
QUORVEL_RECORD(ZencopyLuInfo, 56);
QUORVEL_OFFSET(ZencopyLuInfo, remote_serial, 33);
QUORVEL_OFFSET(ZencopyLuInfo, remote_ldev, 50);

/// The Zencopy pairs of an array.
struct ZencopyInformation {
  std::int32_t option;
  std::int32_t pair_count;
  ZencopyLuInfo lu[2048];
};
QUORVEL_RECORD(ZencopyInformation, 114'696);

QUORVEL_API int QV_CreateGemlynPair(const UnitName* unit, const QVSessionInfo* session,
                                    const CreateGemlynPair* request);
QUORVEL_API int QV_SplitGemlynPair(const UnitName* unit, const QVSessionInfo* session,
                                   const SplitGemlynPair* request);
QUORVEL_API int QV_SimpleGemlynPair(const UnitName* unit, const QVSessionInfo* session,
                                    const PairOperation* request);
QUORVEL_API int QV_ResyncGemlynPair(const UnitName* unit, const QVSessionInfo* session,
                                    const PairOperation* request);
QUORVEL_API int QV_RestoreGemlynPair(const UnitName* unit, const QVSessionInfo* session,
                                     const PairOperation* request);
QUORVEL_API int QV_CreateSnapShotPair(const UnitName* unit, const QVSessionInfo* session,
                                      const CreateSnapShotPair* request);
QUORVEL_API int QV_SplitSnapShotPair(const UnitName* unit, const QVSessionInfo* session,
                                     const SplitSnapShotPair* request);
QUORVEL_API int QV_SimpleSnapShotPair(const UnitName* unit, const QVSessionInfo* session,
                                      const PairOperation* request);
QUORVEL_API int QV_ResyncSnapShotPair(const UnitName* unit, const QVSessionInfo* session,
                                      const PairOperation* request);
QUORVEL_API int QV_RestoreSnapShotPair(const UnitName* unit, const QVSessionInfo* session,
                                       const PairOperation* request);
QUORVEL_API int QV_CreateFarlinkPair(const UnitName* unit, const QVSessionInfo* session,
                                     const CreateFarlinkPair* request);
QUORVEL_API int QV_SplitFarlinkPair(const UnitName* unit, const QVSessionInfo* session,
                                    const SplitFarlinkPair* request);
QUORVEL_API int QV_SimpleFarlinkPair(const UnitName* unit, const QVSessionInfo* session,
                                     const SimpleRemotePair* request);
QUORVEL_API int QV_ResyncFarlinkPair(const UnitName* unit, const QVSessionInfo* session,
                                     const RemotePairOperation* request);
QUORVEL_API int QV_SwapFarlinkPair(const UnitName* unit, const QVSessionInfo* session,
                                   const RemotePairOperation* request);
QUORVEL_API int QV_CreateLonglinkPair(const UnitName* unit, const QVSessionInfo* session,
                                      const CreateLonglinkPair* request);
QUORVEL_API int QV_SplitLonglinkPair(const UnitName* unit, const QVSessionInfo* session,
                                     const SplitLonglinkPair* request);
QUORVEL_API int QV_SimpleLonglinkPair(const UnitName* unit, const QVSessionInfo* session,
                                      const SimpleRemotePair* request);
QUORVEL_API int QV_ResyncLonglinkPair(const UnitName* unit, const QVSessionInfo* session,
                                      const RemotePairOperation* request);
QUORVEL_API int QV_SwapLonglinkPair(const UnitName* unit, const QVSessionInfo* session,
                                    const RemotePairOperation* request);
QUORVEL_API int QV_ChangeReplicationPair(const UnitName* unit, const QVSessionInfo* session,
                                         const PairChange* change);
QUORVEL_API int QV_ChangeCopyPace(const UnitName* unit, const QVSessionInfo* session,
                                  const LuMigrationRequest* request);
QUORVEL_API int QV_GetPairInformation(const UnitName* unit, const QVSessionInfo* session,
                                      PairInfo* pairs);
QUORVEL_API int QV_GetPairInformationSimple(const UnitName* unit, const QVSessionInfo* session,
                                            PairInfoSimple* pairs);
QUORVEL_API int QV_GetFarlinkPairInformation(const UnitName* unit, const QVSessionInfo* session,
                                             FarlinkPairInformation* pairs);
QUORVEL_API int QV_GetFarlinkAsyncPairInformation(const UnitName* unit,
                                                  const QVSessionInfo* session,
                                                  FarlinkAsyncPairInformation* pairs);
QUORVEL_API int QV_GetFarlinkAsyncOption(const UnitName* unit, const QVSessionInfo* session,
                                         FarlinkAsyncOption* option);
QUORVEL_API int QV_SetFarlinkAsyncOption(const UnitName* unit, const QVSessionInfo* session,
                                         const FarlinkAsyncOption* option);
QUORVEL_API int QV_GetZencopyInformation(const UnitName* unit, ZencopyInformation* pairs);
QUORVEL_API int QV_SplitZencopyPair(const UnitName* unit, std::int32_t pair);

// Remote paths and consistency groups

/// A consistency group.
struct CTGInfo {
  std::int32_t ctg_valid;
  std::int32_t ctg_copytype;
  std::int32_t ctg_no;
  char ctg_name[32];
  std::int32_t pair_status_detail0;
  std::int32_t pair_status_detail1;
};
QUORVEL_RECORD(CTGInfo, 52);

/// The groups of pairs inside the array, then those of remote pairs.
struct CTGInformation {
  CTGInfo gmss_info[256];
  CTGInfo flfle_info[256];
};
QUORVEL_RECORD(CTGInformation, 26'624);

/// The array at the other end of remote pairs.
struct RemoteDeviceInformation {
  std::int32_t valid;
  char equipment_id[5];
  char serial[9];
};
QUORVEL_RECORD(RemoteDeviceInformation, 20);
QUORVEL_OFFSET(RemoteDeviceInformation, serial, 9);

struct RemoteDeviceInfo {
  std::int32_t set_valid;
  char serial[9];
};
QUORVEL_RECORD(RemoteDeviceInfo, 16);

/// The arrays at the other ends of remote pairs.
struct RemoteDeviceInformationEx {
  RemoteDeviceInfo dev[8];
};
QUORVEL_RECORD(RemoteDeviceInformationEx, 128);

struct RemotePathSerial {
  char remote_serial[17];
};
QUORVEL_RECORD(RemotePathSerial, 17);

/// The arrays to which the remote paths are to be deleted.
struct RemotePathDeletion {
  std::int32_t delete_count;
  RemotePathSerial serial[8];
};
QUORVEL_RECORD(RemotePathDeletion, 140);

/// A remote path to rebuild.
struct RemotePathRebuild {
  char remote_serial[17];
  std::int32_t path;
};
QUORVEL_RECORD(RemotePathRebuild, 24);
QUORVEL_OFFSET(RemotePathRebuild, path, 20);

/// A remote path from this array to another one.
struct RvrfSrcPath {
  std::int32_t valid_index;
  std::int32_t path_status;
  std::int32_t self_ctl_no;
  std::int32_t self_port_no;
  std::int32_t other_ctl_no;
  std::int32_t other_port_no;
  char remote_ip_addr[16];
  std::int32_t remote_port_num;
  std::int32_t secret_valid;
  char secret[33];
};
QUORVEL_RECORD(RvrfSrcPath, 84);
QUORVEL_SECRET(RvrfSrcPath, secret);
QUORVEL_OFFSET(RvrfSrcPath, remote_port_num, 40);
QUORVEL_OFFSET(RvrfSrcPath, secret, 48);

/// An array that this one is connected to.
struct RvrfSrcArrayUnit {
  std::int32_t valid;
  std::int32_t mode;
  std::int32_t other_detect_id;
  char other_serial_no[9];
  char other_sequence_no[5];
  RvrfSrcPath path[2];
  std::int32_t timeout_valid;
  std::int32_t timeout;
  std::int32_t port_type;
  std::int32_t line_band_valid;
  std::int32_t line_band;
};
QUORVEL_RECORD(RvrfSrcArrayUnit, 216);
QUORVEL_OFFSET(RvrfSrcArrayUnit, other_sequence_no, 21);
QUORVEL_OFFSET(RvrfSrcArrayUnit, path, 28);
QUORVEL_OFFSET(RvrfSrcArrayUnit, timeout_valid, 196);

/// The remote paths of an array.
struct RvrfSrcInfo {
  std::int32_t rvrfsrc_option;
  std::int32_t self_detect_id;
  char self_serial_no[9];
  char self_sequence_no[5];
  std::int32_t line_band_default;
  std::int32_t port_num_default;
  RvrfSrcArrayUnit arrayunit[8];
};
QUORVEL_RECORD(RvrfSrcInfo, 1760);
QUORVEL_OFFSET(RvrfSrcInfo, self_sequence_no, 17);
QUORVEL_OFFSET(RvrfSrcInfo, line_band_default, 24);
QUORVEL_OFFSET(RvrfSrcInfo, arrayunit, 32);

struct CmdDevInfo {
  std::int32_t cmd_valid;
  std::int32_t set_valid;
  std::int32_t cmd_lu;
  std::int32_t rm_security;
};
QUORVEL_RECORD(CmdDevInfo, 16);

/// The command devices of an array.
struct CommandDevice {
  std::int32_t mrcf_lite;
  std::int32_t mode;
  std::int32_t valid[2];
  std::int32_t lu[2];
  std::int32_t security[2];
  char sequence_no[5];
  std::int32_t cmd_count;
  CmdDevInfo cmddev[128];
};
QUORVEL_RECORD(CommandDevice, 2092);
QUORVEL_OFFSET(CommandDevice, sequence_no, 32);
QUORVEL_OFFSET(CommandDevice, cmd_count, 40);

/// A pair, as a coupling of two logical units.
struct CouplingLU {
  std::int32_t primary_stat;
  std::int32_t second_stat;
  std::int32_t second_stat_detail;
  std::int32_t primary_lu;
  std::int32_t second_lu;
  std::int32_t primary_switch_stat;
  std::int32_t second_switch_stat;
  std::int32_t mirror_no;
  std::int32_t capacity_h;
  std::int32_t capacity_l;
  std::int32_t synchronized_rate;
  DateTime split_time;
  char add_message[32];
  std::int32_t ctg_valid;
  std::int32_t ctg_no;
  char ctg_name[32];
  char pair_name[32];
  std::int32_t copy_speed;
};
QUORVEL_RECORD(CouplingLU, 176);
QUORVEL_OFFSET(CouplingLU, split_time, 44);
QUORVEL_OFFSET(CouplingLU, ctg_valid, 100);
QUORVEL_OFFSET(CouplingLU, copy_speed, 172);

/// All couplings of an array.
struct CouplingInfo {
  std::int32_t mrcf_lite;
  std::int32_t coupling_num;
  CouplingLU coupling[8192];
};
QUORVEL_RECORD(CouplingInfo, 1'441'800);

struct SyncPort {
  std::int8_t board_type;
  std::int8_t rate;
};
QUORVEL_RECORD(SyncPort, 2);
QUORVEL_ASSUMED(SyncPort, rate);

/// The synchronisation of a controller's ports.
struct SyncControl {
  SyncPort port_val[4];
};
QUORVEL_RECORD(SyncControl, 8);

QUORVEL_API int QV_GetCTGInformation(const UnitName* unit, const QVSessionInfo* session,
                                     CTGInformation* groups);
QUORVEL_API int QV_ChangeReplicationCTG(const UnitName* unit, const QVSessionInfo* session,
                                        const CTGInfo* change);
QUORVEL_API int QV_GetRemoteDeviceInformation(const UnitName* unit, const QVSessionInfo* session,
                                              RemoteDeviceInformation* device);
QUORVEL_API int QV_SetRemoteDeviceInformation(const UnitName* unit, const QVSessionInfo* session,
                                              const RemoteDeviceInformation* device);
QUORVEL_API int QV_GetRemoteDeviceInformationEx(const UnitName* unit, const QVSessionInfo* session,
                                                RemoteDeviceInformationEx* devices);
QUORVEL_API int QV_SetRemoteDeviceInformationEx(const UnitName* unit, const QVSessionInfo* session,
                                                const RemoteDeviceInformationEx* devices);
QUORVEL_API int QV_DelRemotePath(const UnitName* unit, const QVSessionInfo* session,
                                 const RemotePathDeletion* deletion);
QUORVEL_API int QV_ReconstructRemotePath(const UnitName* unit, const QVSessionInfo* session,
                                         const RemotePathRebuild* rebuild);
QUORVEL_API int QV_GetRvrfSrcPath(const UnitName* unit, const QVSessionInfo* session,
                                  RvrfSrcInfo* paths);
QUORVEL_API int QV_SetRvrfSrcPath(const UnitName* unit, const QVSessionInfo* session,
                                  const RvrfSrcArrayUnit* paths);
QUORVEL_API int QV_DelRvrfSrcPath(const UnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_GetCommandDevice(const UnitName* unit, const QVSessionInfo* session,
                                    CommandDevice* device);
QUORVEL_API int QV_SetCommandDevice(const UnitName* unit, const QVSessionInfo* session,
                                    const CommandDevice* device);
QUORVEL_API int QV_GetCouplingInfo(const UnitName* unit, const QVSessionInfo* session,
                                   CouplingInfo* couplings);
QUORVEL_API int QV_GetSyncControl(const UnitName* unit, std::int32_t controller,
                                  SyncControl* control);
QUORVEL_API int QV_SetSyncControl(const UnitName* unit, std::int32_t controller,
                                  const SyncControl* control, std::int32_t option);

// Volume migration

/// Logical units to reserve as targets: a byte for each.
struct LuMigrationReserve {
  std::byte reserve_lu[8192];
};
QUORVEL_RECORD(LuMigrationReserve, 8192);

/// What the migration has to do with each logical unit.
struct LuMigrationState {
  std::int32_t lun[8192];
};
QUORVEL_RECORD(LuMigrationState, 32'768);

struct LuMigrationReserveLUInfo {
  std::int32_t lun;
  std::int32_t lu_state;
};
QUORVEL_RECORD(LuMigrationReserveLUInfo, 8);

struct LuMigrationPairInfo {
  std::int32_t pvol_lun;
  std::int32_t pvol_rg_num;
  std::int32_t svol_lun;
  std::int32_t svol_rg_num;
  std::int32_t copying_pace;
  std::int32_t owner_id;
  std::int32_t migration_state;
  std::int32_t percent;
  std::int32_t migration_error;
};
QUORVEL_RECORD(LuMigrationPairInfo, 36);

/// The reserved logical units, and the migrations with their progress.
struct LuMigrationInformation {
  std::int32_t option;
  std::int32_t reserve_lu_count;
  std::int32_t pair_lu_count;
  LuMigrationReserveLUInfo reserve_lu[4095];
  LuMigrationPairInfo pair_lu[4095];
};
QUORVEL_RECORD(LuMigrationInformation, 180'192);
QUORVEL_OFFSET(LuMigrationInformation, pair_lu, 32'772);

/// The migration of a whole array.
struct AutoMigrationInformation {
  std::int32_t state;
  std::int32_t copy_percent;
  std::int32_t delete_percent;
  std::int32_t copy_speed;
  std::int32_t migration_error;
  std::int32_t usable_status;
  std::int32_t upgrade_func_valid;
  std::int32_t upgrade_func;
};
QUORVEL_RECORD(AutoMigrationInformation, 32);

struct AutoMigrationPace {
  std::int32_t copy_speed;
};
QUORVEL_RECORD(AutoMigrationPace, 4);

/// The network of one controller.
struct AutoMigrationAccessPathNetwork {
  std::int32_t dhcp_mode;
  char ip_address[16];
  char subnet[16];
  char gateway[16];
  std::int32_t linkspeed_duplex;
};
QUORVEL_RECORD(AutoMigrationAccessPathNetwork, 56);

/// The networks of the old and of the new array.
struct AutoMigrationAccessPath {
  AutoMigrationAccessPathNetwork ctl[2];
  std::int32_t mainte_ip_change_mode;
  AutoMigrationAccessPathNetwork newarray_ctl[2];
  std::int32_t newarray_mainte_ip_change_mode;
};
QUORVEL_RECORD(AutoMigrationAccessPath, 232);
QUORVEL_OFFSET(AutoMigrationAccessPath, newarray_ctl, 116);

QUORVEL_API int QV_AddLuMigrationReserveLU(const UnitName* unit, const QVSessionInfo* session,
                                           const LuMigrationReserve* reserve);
QUORVEL_API int QV_DeleteLuMigrationReserveLU(const UnitName* unit, const QVSessionInfo* session,
                                              const LuMigrationReserve* reserve);
QUORVEL_API int QV_StartLuMigration(const UnitName* unit, const QVSessionInfo* session,
                                    const LuMigrationRequest* request);
QUORVEL_API int QV_CancelLuMigration(const UnitName* unit, const QVSessionInfo* session,
                                     const LuMigrationRequest* request);
QUORVEL_API int QV_SplitLuMigration(const UnitName* unit, const QVSessionInfo* session,
                                    const LuMigrationRequest* request);
QUORVEL_API int QV_SplitLuMigrationFreeOwner(const UnitName* unit, const QVSessionInfo* session,
                                             const LuMigrationRequest* request);
QUORVEL_API int QV_GetLuMigrationState(const UnitName* unit, const QVSessionInfo* session,
                                       LuMigrationState* state);
QUORVEL_API int QV_GetLuMigrationInformation(const UnitName* unit, const QVSessionInfo* session,
                                             LuMigrationInformation* information);
QUORVEL_API int QV_GetAutoMigrationInformation(const UnitName* unit, const QVSessionInfo* session,
                                               AutoMigrationInformation* information);
QUORVEL_API int QV_StartAutoMigration(const UnitName* unit, const QVSessionInfo* session,
                                      const AutoMigrationPace* pace);
QUORVEL_API int QV_ChangeAutoMigrationCopyPace(const UnitName* unit, const QVSessionInfo* session,
                                               const AutoMigrationPace* pace);
QUORVEL_API int QV_ChangeAutoMigrationAccessPath(const UnitName* unit, const QVSessionInfo* session,
                                                 const AutoMigrationAccessPath* path);
QUORVEL_API int QV_DeleteAutoMigrationData(const UnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_ResetAutoMigrationUsableStatus(const UnitName* unit,
                                                  const QVSessionInfo* session);
QUORVEL_API int QV_RebootAutoMigrationUnit(const UnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_ShutdownAutoMigrationUnit(const UnitName* unit, const QVSessionInfo* session);
