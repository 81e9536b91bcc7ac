#pragma once

#include "arraylib/accounts.h"
#include "arraylib/record.h"
#include "arraylib/times.h"

// The state of an array: its condition, its drives and its parts.

// Unit condition

struct CacheStatus {
  std::int32_t option;
  std::int32_t condition;
};
QUORVEL_RECORD(CacheStatus, 8);

struct NNCExtensionSlotStatus {
  std::int32_t valid_index;
  std::uint8_t card_state;
  std::uint8_t card_type;
  std::int8_t connector_state[8];
};
QUORVEL_RECORD(NNCExtensionSlotStatus, 16);
QUORVEL_OFFSET(NNCExtensionSlotStatus, connector_state, 6);

/// A network node controller and its parts.
struct NNCPartsStatus {
  std::int32_t valid_index;
  std::int8_t dimm[4];
  std::int8_t ps[2];
  std::int8_t fan[3];
  std::int8_t connector[8];
  std::uint8_t nnc_type;
  NNCExtensionSlotStatus ext_slot[4];
  std::uint8_t nnc_base;
};
QUORVEL_RECORD(NNCPartsStatus, 92);
QUORVEL_OFFSET(NNCPartsStatus, connector, 13);
QUORVEL_OFFSET(NNCPartsStatus, nnc_type, 21);
QUORVEL_OFFSET(NNCPartsStatus, ext_slot, 24);
QUORVEL_OFFSET(NNCPartsStatus, nnc_base, 88);

/// The condition of every replaceable part.
struct UnitCondition {
  char micro[9];
  char micro_pair[11];
  std::int32_t max_slot;
  CacheStatus cache[4];
  CacheStatus cache2[4];
  std::int8_t ps[122];
  std::int8_t fan[244];
  std::int8_t ac[2];
  std::int8_t batt[4];
  std::int8_t batt_bk[2];
  std::int8_t if_board[2][2];
  std::int8_t optionBoard_2port[2];
  std::int8_t ctl0_port[8];
  std::int8_t ctl1_port[8];
  std::int8_t ctl0_port_type[8];
  std::int8_t ctl1_port_type[8];
  std::byte connector[2][8][2];
  std::int8_t device_type;
  std::int8_t device_type_QVK_sub_code;
  char ctl0_flush[7];
  char ctl1_flush[7];
  char ctl0_ip[40];
  char ctl1_ip[40];
  char ctl0_subnet[40];
  char ctl1_subnet[40];
  char ctl0_gateway[40];
  char ctl1_gateway[40];
  char ctl0_ip_ipv6[40];
  char ctl1_ip_ipv6[40];
  std::int32_t ctl0_subnet_prefix;
  std::int32_t ctl1_subnet_prefix;
  char ctl0_gateway_ipv6[40];
  char ctl1_gateway_ipv6[40];
  std::uint8_t controller_condition;
  std::int8_t enclosure[122];
  std::int8_t loop[8];
  char serial[9];
  char serial_id[12];
  std::int32_t add_info_index;
  std::int32_t unit_count;
  std::int8_t unit_type[61];
  std::int8_t unit_type_sub_code[61];
  std::int8_t unit_kind[61];
  std::int8_t nnc[4];
  NNCPartsStatus nnc_parts[4];
  std::int8_t function_revision[128];
  std::int32_t ctl_num;
  std::int8_t add_batt[2];
  std::int32_t sa_unit_exchange_req[2];
  std::int32_t sa_repair_inst_req[3];
  char device_type_name[12];
};
QUORVEL_RECORD(UnitCondition, 1840);
QUORVEL_OFFSET(UnitCondition, micro_pair, 9);
QUORVEL_OFFSET(UnitCondition, max_slot, 20);
QUORVEL_OFFSET(UnitCondition, ps, 88);
QUORVEL_OFFSET(UnitCondition, if_board, 462);
QUORVEL_OFFSET(UnitCondition, connector, 500);
QUORVEL_OFFSET(UnitCondition, device_type, 532);
QUORVEL_OFFSET(UnitCondition, ctl0_ip, 548);
QUORVEL_OFFSET(UnitCondition, ctl0_subnet_prefix, 868);
QUORVEL_OFFSET(UnitCondition, controller_condition, 956);
QUORVEL_OFFSET(UnitCondition, loop, 1079);
QUORVEL_OFFSET(UnitCondition, serial, 1087);
QUORVEL_OFFSET(UnitCondition, add_info_index, 1108);
QUORVEL_OFFSET(UnitCondition, unit_type, 1116);
QUORVEL_OFFSET(UnitCondition, nnc, 1299);
QUORVEL_OFFSET(UnitCondition, nnc_parts, 1304);
QUORVEL_OFFSET(UnitCondition, ctl_num, 1800);
QUORVEL_OFFSET(UnitCondition, sa_unit_exchange_req, 1808);
QUORVEL_OFFSET(UnitCondition, device_type_name, 1828);

/// Who asks for the summary of an array: a user, or a session that is open.
struct ArrayConditionRequest {
  std::int32_t login_request;
  char user_id[257];
  char passwd[257];
  QVSessionInfo session;
};
QUORVEL_RECORD(ArrayConditionRequest, 552);
QUORVEL_SECRET(ArrayConditionRequest, passwd);
QUORVEL_OFFSET(ArrayConditionRequest, passwd, 261);
QUORVEL_OFFSET(ArrayConditionRequest, session, 518);

/// A summary of an array. A capacity is in two words, the high one first.
struct ArrayCondition {
  std::int32_t login_kind;
  std::int32_t valid_index;
  std::int32_t login_result;
  std::int32_t operation_auth[9];
  std::int32_t alert_valid;
  std::int32_t alert[2];
  std::int32_t alert_sa;
  std::int32_t lu_count;
  std::int32_t all_lu_capa_h;
  std::int32_t all_lu_capa_l;
  std::int32_t unused_drive_count;
  std::int32_t unused_drive_capa_h;
  std::int32_t unused_drive_capa_l;
  std::int32_t drive_count;
  std::int32_t all_drive_capa_h;
  std::int32_t all_drive_capa_l;
};
QUORVEL_RECORD(ArrayCondition, 100);

QUORVEL_API int QV_GetUnitCondition(const UnitName* unit, const QVSessionInfo* session,
                                    std::int32_t option, UnitCondition* condition);
QUORVEL_API int QV_GetArrayCondition(const UnitName* unit, const ArrayConditionRequest* request,
                                     ArrayCondition* condition);

// Drives

/// What a drive is.
struct DiskDriveInformation {
  char vendor[9];
  char product[17];
  char revision[6];
  std::int32_t lastLBA;
  char drive_capacity[12];
  std::int32_t add_info_index;
  char serial[12];
  std::int32_t unit_type;
  std::int32_t drive_type;
  std::int32_t unit_type_sub_code;
  std::int32_t drive_rotation;
  char drive_type_name[12];
};
QUORVEL_RECORD(DiskDriveInformation, 92);
QUORVEL_OFFSET(DiskDriveInformation, lastLBA, 32);
QUORVEL_OFFSET(DiskDriveInformation, serial, 52);

/// How a drive is.
struct DiskDrive {
  std::int32_t port_no;
  std::int32_t row_no;
  std::int32_t mount;
  std::int32_t attribute;
  std::int32_t drv_state;
  std::int32_t spare_of_disk_port;
  std::int32_t spare_of_disk_row;
  std::int32_t drv_alert_state;
};
QUORVEL_RECORD(DiskDrive, 32);

struct DiskDriveUnitInfo {
  std::int32_t drive_mount_count;
  DiskDriveInformation drives[30];
};
QUORVEL_RECORD(DiskDriveUnitInfo, 2764);

struct DiskDriveInformationAll {
  DiskDriveUnitInfo unit[60];
};
QUORVEL_RECORD(DiskDriveInformationAll, 165840);

struct DiskDriveStatusUnit {
  std::int32_t drive_mount_count;
  DiskDrive drives[30];
};
QUORVEL_RECORD(DiskDriveStatusUnit, 964);

struct DiskDriveStatusAll {
  DiskDriveStatusUnit unit[60];
};
QUORVEL_RECORD(DiskDriveStatusAll, 57840);

struct DriveReconstructInformation {
  std::int32_t valid;
  std::int32_t status_code;
  std::int32_t progress_ratio;
  std::int32_t hdu_no;
  std::int32_t unit_no;
};
QUORVEL_RECORD(DriveReconstructInformation, 20);

/// How drives are restored and spared.
struct DiskDriveRestoration {
  std::int32_t mode;
  std::int32_t restoration;
  std::int32_t dynamic_sparing;
  std::int32_t interval;
  std::int32_t unit_size;
  std::int32_t sparemode;
  std::int32_t no_copyback_allunit;
};
QUORVEL_RECORD(DiskDriveRestoration, 28);

struct DriveResponseDiag {
  std::int32_t valid;
  std::int32_t set_mode;
  std::int32_t mode;
  std::int32_t threshold;
  std::int32_t sata_diag;
  std::int32_t autodiag_threshold;
};
QUORVEL_RECORD(DriveResponseDiag, 24);

struct SATADriveRestoration {
  std::int32_t collect_copy_times;
};
QUORVEL_RECORD(SATADriveRestoration, 4);

struct SweepInfo {
  std::int32_t sweep_valid;
  std::int32_t interval_time;
  std::int32_t stop_time;
  std::int32_t unload;
  std::int32_t onlineVerify;
};
QUORVEL_RECORD(SweepInfo, 20);

struct DriveFlashInfo {
  std::int32_t compare_mode;
  std::int32_t drv_flash_time;
  std::int32_t drv_flash_io_count;
};
QUORVEL_RECORD(DriveFlashInfo, 12);

struct SmartInfo {
  std::int32_t smart_valid;
  std::int32_t reassign_thres;
};
QUORVEL_RECORD(SmartInfo, 8);

/// How SATA drives are maintained.
struct SATADriveInformation {
  SweepInfo sweep_info;
  DriveFlashInfo flash_info;
  SmartInfo smart_info;
};
QUORVEL_RECORD(SATADriveInformation, 40);

struct SpinDownUpRGInfo {
  std::int32_t rgnum;
  std::int32_t rg_power_saving_status;
  std::int32_t rg_power_saving;
  std::int32_t spin_down_count;
  std::int32_t spin_error;
};
QUORVEL_RECORD(SpinDownUpRGInfo, 20);

struct SpinDownUpLuInfo {
  std::int32_t lun;
  std::int32_t lu_power_saving;
  std::int32_t lu_power_saving_detail;
};
QUORVEL_RECORD(SpinDownUpLuInfo, 12);

/// Power saving by RAID group and by logical unit.
struct SpinDownUpInformation {
  std::int32_t option;
  std::int32_t rg_count;
  SpinDownUpRGInfo rg[200];
  std::int32_t lu_count;
  SpinDownUpLuInfo lu[8192];
};
QUORVEL_RECORD(SpinDownUpInformation, 102316);

struct PINInfoDetail {
  std::int32_t middle;
  std::int32_t physical;
  std::int32_t write_uncompleted;
};
QUORVEL_RECORD(PINInfoDetail, 12);

/// Pinned data by logical unit.
struct PINInformation {
  std::int32_t unite_option;
  std::int32_t single_lu[8192];
  std::int32_t unite_lu[8192];
  PINInfoDetail single_lu_detail[8192];
  PINInfoDetail unite_lu_detail[8192];
};
QUORVEL_RECORD(PINInformation, 262148);

/// Pinned data by logical unit, in the short form.
using PinTable = std::int32_t[8192];

/// All drives in one row.
using FlatDriveInformation = DiskDriveInformation[450];
using FlatDriveStatus = DiskDrive[450];

QUORVEL_API int QV_GetDriveInformation(const UnitName* unit, const QVSessionInfo* session,
                                       std::int32_t first, std::int32_t second,
                                       DiskDriveInformation* information);
QUORVEL_API int QV_GetDriveInformationAll(const UnitName* unit, const QVSessionInfo* session,
                                          FlatDriveInformation* drives);
QUORVEL_API int QV_GetDiskDriveInformationAll(const UnitName* unit, const QVSessionInfo* session,
                                              DiskDriveInformationAll* drives);
QUORVEL_API int QV_GetDiskDriveStatusAll(const UnitName* unit, const QVSessionInfo* session,
                                         DiskDriveStatusAll* drives);
QUORVEL_API int QV_GetDriveStatus(const UnitName* unit, const QVSessionInfo* session,
                                  FlatDriveStatus* drives);
QUORVEL_API int QV_DriveReconstructInformation(const UnitName* unit, const QVSessionInfo* session,
                                               std::int32_t first, std::int32_t second,
                                               DriveReconstructInformation* information);
QUORVEL_API int QV_GetDiskDriveRestoration(const UnitName* unit, const QVSessionInfo* session,
                                           DiskDriveRestoration* restoration);
QUORVEL_API int QV_SetDiskDriveRestoration(const UnitName* unit, const QVSessionInfo* session,
                                           const DiskDriveRestoration* restoration);
QUORVEL_API int QV_GetSATADriveInformation(const UnitName* unit, const QVSessionInfo* session,
                                           SATADriveInformation* information);
QUORVEL_API int QV_SetSATADriveInformation(const UnitName* unit, const QVSessionInfo* session,
                                           const SATADriveInformation* information);
QUORVEL_API int QV_GetSATADriveRestoration(const UnitName* unit, const QVSessionInfo* session,
                                           SATADriveRestoration* restoration);
QUORVEL_API int QV_SetSATADriveRestoration(const UnitName* unit, const QVSessionInfo* session,
                                           const SATADriveRestoration* restoration);
QUORVEL_API int QV_GetDriveResponseDiag(const UnitName* unit, const QVSessionInfo* session,
                                        DriveResponseDiag* diagnosis);
QUORVEL_API int QV_SetDriveResponseDiag(const UnitName* unit, const QVSessionInfo* session,
                                        const DriveResponseDiag* diagnosis);
QUORVEL_API int QV_SetDriveMode(const UnitName* unit, const QVSessionInfo* session,
                                std::int32_t first, std::int32_t second, std::int32_t third);
QUORVEL_API int QV_GetSpinDownUpInformation(const UnitName* unit, const QVSessionInfo* session,
                                            SpinDownUpInformation* information);
QUORVEL_API int QV_SpinDownDriveByRG(const UnitName* unit, const QVSessionInfo* session,
                                     std::int32_t raidGroup);
QUORVEL_API int QV_SpinUpDriveByRG(const UnitName* unit, const QVSessionInfo* session,
                                   std::int32_t raidGroup);
QUORVEL_API int QV_GetIntegrationPinInfo(const UnitName* unit, const QVSessionInfo* session,
                                         PINInformation* information);
QUORVEL_API int QV_GetPinInfo2(const UnitName* unit, const QVSessionInfo* session, PinTable* table);
QUORVEL_API int QV_FlushPinInfo(const UnitName* unit, const QVSessionInfo* session);
QUORVEL_API int QV_GetPinInfo(const UnitName* unit, std::int32_t option, std::int32_t* result);
QUORVEL_API int QV_GetPinInfoGetTime(const UnitName* unit, std::int32_t option,
                                     std::int32_t* result);

// Parts

/// What a part is.
struct VendorInfo {
  std::int32_t support_index;
  std::int32_t valid_index;
  char vendor[9];
  char product[17];
  char revision[5];
  char serial[9];
  char type_name[12];
};
QUORVEL_RECORD(VendorInfo, 60);
QUORVEL_OFFSET(VendorInfo, product, 17);
QUORVEL_OFFSET(VendorInfo, serial, 39);
QUORVEL_OFFSET(VendorInfo, type_name, 48);

struct PartsList {
  std::int32_t support_index;
  std::int32_t valid_index;
  char array_serial[9];
  char array_id[11];
  VendorInfo drive[60][30];
  VendorInfo connector[2][8][2];
  VendorInfo controller[2];
  VendorInfo unit[61];
  VendorInfo enc[61][2];
};
QUORVEL_RECORD(PartsList, 121048);
QUORVEL_OFFSET(PartsList, drive, 28);
QUORVEL_OFFSET(PartsList, connector, 108028);
QUORVEL_OFFSET(PartsList, controller, 109948);
QUORVEL_OFFSET(PartsList, unit, 110068);
QUORVEL_OFFSET(PartsList, enc, 113728);

/// A part that failed.
struct ObstPartsInfo {
  std::int32_t obstparts_code;
  std::int32_t valid_index;
  std::int32_t ctl_num;
  std::int32_t unit_num;
  std::int32_t battery_num;
  std::int32_t fan_num;
  std::int32_t ps_num;
  std::int32_t hdu_num;
  std::int32_t enc_num;
  std::int32_t ups_num;
  std::int32_t connector_num;
  std::int32_t port_num;
  std::int32_t cache_num;
  std::int32_t if_borad_num;
  std::int32_t add_battery_num;
  std::int32_t repair_insert_cnt;
  char failure_code[9];
  char parts_order_code[11];
};
QUORVEL_RECORD(ObstPartsInfo, 84);
QUORVEL_OFFSET(ObstPartsInfo, parts_order_code, 73);

struct ObstPartsInformation {
  char registration_code[12];
  DateTime cto_time;
  std::int32_t ctu_num;
  std::int32_t obst_report_parts_cnt;
  ObstPartsInfo parts[1194];
};
QUORVEL_RECORD(ObstPartsInformation, 100340);
QUORVEL_OFFSET(ObstPartsInformation, parts, 44);

/// The microprogram of an enclosure controller.
struct ENCRevision {
  std::int32_t valid_index;
  char rev_main[7];
  char rev_boot[3];
  char rev_ectl[3];
  char rev_rtr[7];
  char rev_ses[7];
  char rev_sas[9];
};
QUORVEL_RECORD(ENCRevision, 40);
QUORVEL_OFFSET(ENCRevision, rev_boot, 11);
QUORVEL_OFFSET(ENCRevision, rev_ectl, 14);
QUORVEL_OFFSET(ENCRevision, rev_rtr, 17);
QUORVEL_OFFSET(ENCRevision, rev_ses, 24);
QUORVEL_OFFSET(ENCRevision, rev_sas, 31);

/// The microprograms of the kinds of enclosure controllers.
struct ENCMicroRevision {
  ENCRevision bas_rev;
  ENCRevision ext_rev;
  ENCRevision ext_rev_plus[1];
};
QUORVEL_RECORD(ENCMicroRevision, 120);

struct ENCReplaceTime {
  std::int32_t year;
  std::int32_t month;
  std::int32_t day;
  std::int32_t hour;
  std::int32_t minute;
  std::int32_t second;
};
QUORVEL_RECORD(ENCReplaceTime, 24);

struct ENCStatus {
  std::int32_t status;
  ENCRevision enc_rev;
};
QUORVEL_RECORD(ENCStatus, 44);

struct ENCCTUStatus {
  ENCStatus enc[2];
};
QUORVEL_RECORD(ENCCTUStatus, 88);

struct ENCUnitStatus {
  ENCStatus enc[2];
};
QUORVEL_RECORD(ENCUnitStatus, 88);

/// The enclosure controllers and the replacement of their microprogram.
struct ENCStatusList {
  ENCMicroRevision download_rev;
  std::int32_t exec_status;
  ENCReplaceTime start_time;
  ENCReplaceTime now_time;
  std::int32_t replacetime_min;
  std::int32_t replacetime_max;
  std::int32_t validCTU;
  ENCCTUStatus ctu;
  ENCUnitStatus unit[64];
};
QUORVEL_RECORD(ENCStatusList, 5904);
QUORVEL_OFFSET(ENCStatusList, now_time, 148);
QUORVEL_OFFSET(ENCStatusList, ctu, 184);
QUORVEL_OFFSET(ENCStatusList, unit, 272);

struct BatteryConfig {
  std::int32_t battery_count;
};
QUORVEL_RECORD(BatteryConfig, 4);

/// Which locate LEDs are lit.
struct LocateLEDInformation {
  std::int32_t valid_index;
  std::int32_t ctu;
  std::int32_t unit[60];
};
QUORVEL_RECORD(LocateLEDInformation, 248);

QUORVEL_API int QV_GetPartsList(const UnitName* unit, const QVSessionInfo* session,
                                PartsList* parts);
QUORVEL_API int QV_PartsListExport(const UnitName* unit, const QVSessionInfo* session,
                                   const FilePath* path);
QUORVEL_API int QV_GetObstPartsInformation(const UnitName* unit, const QVSessionInfo* session,
                                           ObstPartsInformation* information);
QUORVEL_API int QV_GetENCStatusList(const UnitName* unit, const QVSessionInfo* session,
                                    ENCStatusList* list);
QUORVEL_API int QV_GetBatteryConfig(const UnitName* unit, const QVSessionInfo* session,
                                    BatteryConfig* config);
QUORVEL_API int QV_SetBatteryConfig(const UnitName* unit, const QVSessionInfo* session,
                                    const BatteryConfig* config);
QUORVEL_API int QV_GetLocateLEDInformation(const UnitName* unit, const QVSessionInfo* session,
                                           LocateLEDInformation* information);
QUORVEL_API int QV_SetLocateLEDInformation(const UnitName* unit, const QVSessionInfo* session,
                                           const LocateLEDInformation* information);
