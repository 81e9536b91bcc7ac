// Drives, parts, and what keeps them in order.
#include <iterator>

#include "arraylib/status.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(DiskDriveInformation, vendor, product, revision, lastLBA, drive_capacity,
               add_info_index, serial, unit_type, drive_type, unit_type_sub_code, drive_rotation,
               drive_type_name);
QUORVELJ_CLASS(DiskDrive, port_no, row_no, mount, attribute, drv_state, spare_of_disk_port,
               spare_of_disk_row, drv_alert_state);
QUORVELJ_CLASS(DiskDriveUnitInfo, drive_mount_count, drives);
QUORVELJ_CLASS(DiskDriveInformationAll, unit);
QUORVELJ_CLASS(DiskDriveStatusUnit, drive_mount_count, drives);
QUORVELJ_CLASS(DiskDriveStatusAll, unit);
QUORVELJ_CLASS(DriveReconstructInformation, valid, status_code, progress_ratio, hdu_no, unit_no);
QUORVELJ_CLASS(DiskDriveRestoration, mode, restoration, dynamic_sparing, interval, unit_size,
               sparemode, no_copyback_allunit);
QUORVELJ_CLASS(DriveResponseDiag, valid, set_mode, mode, threshold, sata_diag, autodiag_threshold);
QUORVELJ_CLASS(SATADriveRestoration, collect_copy_times);
QUORVELJ_CLASS(SweepInfo, sweep_valid, interval_time, stop_time, unload, onlineVerify);
QUORVELJ_CLASS(DriveFlashInfo, compare_mode, drv_flash_time, drv_flash_io_count);
QUORVELJ_CLASS(SmartInfo, smart_valid, reassign_thres);
QUORVELJ_CLASS(SATADriveInformation, sweep_info, flash_info, smart_info);
QUORVELJ_CLASS(SpinDownUpRGInfo, rgnum, rg_power_saving_status, rg_power_saving, spin_down_count,
               spin_error);
QUORVELJ_CLASS(SpinDownUpLuInfo, lun, lu_power_saving, lu_power_saving_detail);
QUORVELJ_CLASS(SpinDownUpInformation, option, rg_count, rg, lu_count, lu);
QUORVELJ_CLASS(PINInfoDetail, middle, physical, write_uncompleted);
QUORVELJ_CLASS(PINInformation, unite_option, single_lu, unite_lu, single_lu_detail,
               unite_lu_detail);
QUORVELJ_CLASS(VendorInfo, support_index, valid_index, vendor, product, revision, serial,
               type_name);
QUORVELJ_CLASS(PartsList, support_index, valid_index, array_serial, array_id, drive, connector,
               controller, unit, enc);
QUORVELJ_CLASS(ObstPartsInfo, obstparts_code, valid_index, ctl_num, unit_num, battery_num, fan_num,
               ps_num, hdu_num, enc_num, ups_num, connector_num, port_num, cache_num, if_borad_num,
               add_battery_num, repair_insert_cnt, failure_code, parts_order_code);
QUORVELJ_CLASS(ObstPartsInformation, registration_code, cto_time, ctu_num, obst_report_parts_cnt,
               parts);
QUORVELJ_CLASS(ENCRevision, valid_index, rev_main, rev_boot, rev_ectl, rev_rtr, rev_ses, rev_sas);
QUORVELJ_CLASS(ENCMicroRevision, bas_rev, ext_rev, ext_rev_plus);
QUORVELJ_CLASS(ENCReplaceTime, year, month, day, hour, minute, second);
QUORVELJ_CLASS(ENCStatus, status, enc_rev);
QUORVELJ_CLASS(ENCCTUStatus, enc);
QUORVELJ_CLASS(ENCUnitStatus, enc);
QUORVELJ_CLASS(ENCStatusList, download_rev, exec_status, start_time, now_time, replacetime_min,
               replacetime_max, validCTU, ctu, unit);
QUORVELJ_CLASS(BatteryConfig, battery_count);
QUORVELJ_CLASS(LocateLEDInformation, valid_index, ctu, unit);

NATIVE_METHOD(jobject, GetDriveInformation, jstring unit, jobject session, jint first,
              jint second) {
  return query(env, QV_GetDriveInformation, unit, session, first, second);
}

NATIVE_METHOD(jobject, GetDiskDriveInformationAll, jstring unit, jobject session) {
  return query(env, QV_GetDiskDriveInformationAll, unit, session);
}

NATIVE_METHOD(jobject, GetDiskDriveStatusAll, jstring unit, jobject session) {
  return query(env, QV_GetDiskDriveStatusAll, unit, session);
}

NATIVE_METHOD(jobject, DriveReconstructInformation, jstring unit, jobject session, jint first,
              jint second) {
  return query(env, QV_DriveReconstructInformation, unit, session, first, second);
}

NATIVE_METHOD(jobject, GetDiskDriveRestoration, jstring unit, jobject session) {
  return query(env, QV_GetDiskDriveRestoration, unit, session);
}

NATIVE_METHOD(void, SetDiskDriveRestoration, jstring unit, jobject session, jobject restoration) {
  update(env, QV_SetDiskDriveRestoration, unit, session, restoration);
}

NATIVE_METHOD(jobject, GetSATADriveInformation, jstring unit, jobject session) {
  return query(env, QV_GetSATADriveInformation, unit, session);
}

NATIVE_METHOD(void, SetSATADriveInformation, jstring unit, jobject session, jobject information) {
  update(env, QV_SetSATADriveInformation, unit, session, information);
}

NATIVE_METHOD(jobject, GetSATADriveRestoration, jstring unit, jobject session) {
  return query(env, QV_GetSATADriveRestoration, unit, session);
}

NATIVE_METHOD(void, SetSATADriveRestoration, jstring unit, jobject session, jobject restoration) {
  update(env, QV_SetSATADriveRestoration, unit, session, restoration);
}

NATIVE_METHOD(jobject, GetDriveResponseDiag, jstring unit, jobject session) {
  return query(env, QV_GetDriveResponseDiag, unit, session);
}

NATIVE_METHOD(void, SetDriveResponseDiag, jstring unit, jobject session, jobject diagnosis) {
  update(env, QV_SetDriveResponseDiag, unit, session, diagnosis);
}

NATIVE_METHOD(void, SetDriveMode, jstring unit, jobject session, jint first, jint second,
              jint third) {
  update(env, QV_SetDriveMode, unit, session, first, second, third);
}

NATIVE_METHOD(jobject, GetSpinDownUpInformation, jstring unit, jobject session) {
  return query(env, QV_GetSpinDownUpInformation, unit, session);
}

NATIVE_METHOD(void, SpinDownDriveByRG, jstring unit, jobject session, jint raidGroup) {
  update(env, QV_SpinDownDriveByRG, unit, session, raidGroup);
}

NATIVE_METHOD(void, SpinUpDriveByRG, jstring unit, jobject session, jint raidGroup) {
  update(env, QV_SpinUpDriveByRG, unit, session, raidGroup);
}

NATIVE_METHOD(jobject, GetPartsList, jstring unit, jobject session) {
  return query(env, QV_GetPartsList, unit, session);
}

NATIVE_METHOD(void, PartsListExport, jstring unit, jobject session, jstring path) {
  update(env, QV_PartsListExport, unit, session, path);
}

NATIVE_METHOD(jobject, GetObstPartsInformation, jstring unit, jobject session) {
  return query(env, QV_GetObstPartsInformation, unit, session);
}

NATIVE_METHOD(jobject, GetENCStatusList, jstring unit, jobject session) {
  return query(env, QV_GetENCStatusList, unit, session);
}

NATIVE_METHOD(jobject, GetBatteryConfig, jstring unit, jobject session) {
  return query(env, QV_GetBatteryConfig, unit, session);
}

NATIVE_METHOD(void, SetBatteryConfig, jstring unit, jobject session, jobject config) {
  update(env, QV_SetBatteryConfig, unit, session, config);
}

NATIVE_METHOD(jobject, GetLocateLEDInformation, jstring unit, jobject session) {
  return query(env, QV_GetLocateLEDInformation, unit, session);
}

NATIVE_METHOD(void, SetLocateLEDInformation, jstring unit, jobject session, jobject information) {
  update(env, QV_SetLocateLEDInformation, unit, session, information);
}

NATIVE_METHOD(jobject, GetIntegrationPinInfo, jstring unit, jobject session) {
  return query(env, QV_GetIntegrationPinInfo, unit, session);
}

NATIVE_METHOD(void, FlushPinInfo, jstring unit, jobject session) {
  update(env, QV_FlushPinInfo, unit, session);
}

NATIVE_METHOD(jint, GetPinInfo, jstring unit, jint option) {
  return value(env, QV_GetPinInfo, unit, option);
}

NATIVE_METHOD(jint, GetPinInfoGetTime, jstring unit, jint option) {
  return value(env, QV_GetPinInfoGetTime, unit, option);
}

DEPARTS(GetDriveInformationAll, kPartialDeparts);
NATIVE_METHOD(jobjectArray, GetDriveInformationAll, jstring unit, jobject session) {
  return partialQuery(env, QV_GetDriveInformationAll, unit, session);
}

DEPARTS(GetDriveStatus,
        "flushes nothing itself, takes a null name for an empty one, never releases the session's "
        "record, stores every element, also one that could not be built, and returns an array that "
        "cannot be made as null without 2817",
        .neverReleased = 1, .acceptsNullText = true);
NATIVE_METHOD(jobjectArray, GetDriveStatus, jstring unit, jobject session) {
  UnitName name;
  copyOptionalText(env, unit, name);
  Argument<const QVSessionInfo*> opened(session);
  if (!opened.allocate()) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  opened.read(env);
  const OwnRecord<FlatDriveStatus> drives;
  if (!drives) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  const int result = QV_GetDriveStatus(&name, opened.get(), drives.get());
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  constexpr auto kDrives = static_cast<jsize>(std::extent_v<FlatDriveStatus>);
  const jobjectArray array = newObjectArrayByName(env, ClassOf<DiskDrive>::kName, kDrives);
  if (array == nullptr) {
    return nullptr;
  }
  for (jsize index = 0; index < kDrives; ++index) {
    const jobject drive = build(env, ClassOf<DiskDrive>::kMap, *drives + index);
    env->SetObjectArrayElement(array, index, drive);
    deleteLocalRef(env, drive);
  }
  return array;
}

DEPARTS(GetPinInfo2, "the result is an `int[]`");
NATIVE_METHOD(jintArray, GetPinInfo2, jstring unit, jobject session) {
  LibraryCall library(env, QV_GetPinInfo2, unit, session);
  if (!library.begin()) {
    return nullptr;
  }
  const OwnRecord<PinTable> table;
  if (!table) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  const int result = library.call(table.get());
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  const jintArray array = newIntArray(env, *table, static_cast<jsize>(std::size(*table)));
  if (array == nullptr) {
    throwArrayException(env, kFailed);
    return nullptr;
  }
  flushOutput();
  return array;
}
