// Logical units (LUs): listing, creating, changing and deleting them, formatting and parity
// correction, and the controllers that own them.
#include "arraylib/storage.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(LogicalUnit, luNumber, rgNumber, raid_level, staging, capacity, capacity_h,
               capacity_l, befor_lun, cachepart_no, pair_cachepart_valid, pair_cachepart_no,
               current_cachepart_no, stripe, lu_use_type, defaultCTL, currentCTL, status, hostblock,
               lu_valid, qf_status, correction_status, rg_last_lu, unit_type, unit_type_sub_code);
QUORVELJ_CLASS(LogicalUnitCreationRequest, luNumber, rgNumber, lu_capacity_h, lu_capacity_l,
               befor_lun_count, befor_lun, cachepart_no, pair_cachepart_valid, pair_cachepart_no,
               stripe, lu_use_type, hostblock);
QUORVELJ_CLASS(LogicalUnitReallocationRequest, lun, lusize, newlun);
QUORVELJ_CLASS(FormatStatus, entry, status, percent, err_code_sense_key, err_code_sense_code);
QUORVELJ_CLASS(FormatStatusList, mode, totalpercent, resttime, lu);
QUORVELJ_CLASS(LuFormatStatus, status, percent, err_code_sense_key, err_code_sense_code);
QUORVELJ_CLASS(LuFormatStatusList, lu);
QUORVELJ_CLASS(FormatEntryList, lu);
QUORVELJ_CLASS(QuickFormatOption, valid_index, change_index, priority_mode, format_mode);
QUORVELJ_CLASS(QuickFormatStatus, entry, status, percent, waiting_number);
QUORVELJ_CLASS(QuickFormatStatusList, priority_mode, format_mode, lu);
QUORVELJ_CLASS(QuickFormatEntryList, lu);
QUORVELJ_CLASS(ParityCorrectionRequest, correction_mode, lu_count, lu);
QUORVELJ_CLASS(CorrectionLuStatus, status, percent, waiting_number);
QUORVELJ_CLASS(ParityCorrectionStatusList, lu);
QUORVELJ_CLASS(LuOwnershipInfo, lu_num, rg_num, lu_type, d_ctl, c_ctl, cache_num, cpucore_num);
QUORVELJ_CLASS(LuOwnership, count, lu);

NATIVE_METHOD(jobject, GetLogicalUnit1, jstring unit, jobject session, jint lun) {
  return query(env, QV_GetLogicalUnit1, unit, session, lun);
}

NATIVE_METHOD(jint, GetLastLogicalUnit, jstring unit) {
  return value(env, QV_GetLastLogicalUnit, unit);
}

NATIVE_METHOD(void, CreateLogicalUnit, jstring unit, jobject session, jobject request) {
  update(env, QV_CreateLogicalUnit, unit, session, request);
}

NATIVE_METHOD(void, LogicalUnitAdd, jstring unit, jobject session, jobject record) {
  update(env, QV_LogicalUnitAdd, unit, session, record);
}

NATIVE_METHOD(void, LogicalUnitDelete, jstring unit) { update(env, QV_LogicalUnitDelete, unit); }

NATIVE_METHOD(void, LogicalUnitDeleteAll, jstring unit) {
  update(env, QV_LogicalUnitDeleteAll, unit);
}

NATIVE_METHOD(void, LogicalUnitDeleteByLUN, jstring unit, jobject session, jint lun) {
  update(env, QV_LogicalUnitDeleteByLUN, unit, session, lun);
}

NATIVE_METHOD(void, LogicalUnitExpand, jstring unit, jint first, jint second) {
  update(env, QV_LogicalUnitExpand, unit, first, second);
}

NATIVE_METHOD(void, LogicalUnitChangeStaging, jstring unit, jobject session, jint first,
              jint second) {
  update(env, QV_LogicalUnitChangeStaging, unit, session, first, second);
}

NATIVE_METHOD(void, LogicalUnitChangeCtl, jstring unit, jobject session, jint value) {
  update(env, QV_LogicalUnitChangeCtl, unit, session, value);
}

NATIVE_METHOD(void, LogicalUnitInvalid, jstring unit, jint lun) {
  update(env, QV_LogicalUnitInvalid, unit, lun);
}

NATIVE_METHOD(void, LogicalUnitRestore, jstring unit, jint lun) {
  update(env, QV_LogicalUnitRestore, unit, lun);
}

NATIVE_METHOD(void, LogicalUnitRealloc, jstring unit, jobject request) {
  update(env, QV_LogicalUnitRealloc, unit, request);
}

NATIVE_METHOD(void, LogicalUnitFormat, jstring unit, jint first, jint second) {
  update(env, QV_LogicalUnitFormat, unit, first, second);
}

NATIVE_METHOD(jint, LogicalUnitFormatStatus, jstring unit, jint lun) {
  return value(env, QV_LogicalUnitFormatStatus, unit, lun);
}

NATIVE_METHOD(jint, LogicalUnitFormatImmediateCTL, jstring unit, jint first, jint second) {
  return value(env, QV_LogicalUnitFormatImmediateCTL, unit, first, second);
}

NATIVE_METHOD(void, EntryFormatList, jstring unit, jobject list) {
  update(env, QV_EntryFormatList, unit, list);
}

NATIVE_METHOD(jobject, GetFormatStatusList, jstring unit) {
  return query(env, QV_GetFormatStatusList, unit);
}

NATIVE_METHOD(jobject, GetQuickFormatOption, jstring unit, jobject session) {
  return query(env, QV_GetQuickFormatOption, unit, session);
}

NATIVE_METHOD(void, SetQuickFormatOption, jstring unit, jobject session, jobject option) {
  update(env, QV_SetQuickFormatOption, unit, session, option);
}

NATIVE_METHOD(void, EntryQuickFormatList, jstring unit, jobject session, jobject list) {
  update(env, QV_EntryQuickFormatList, unit, session, list);
}

NATIVE_METHOD(jobject, GetQuickFormatStatusList, jstring unit, jobject session) {
  return query(env, QV_GetQuickFormatStatusList, unit, session);
}

NATIVE_METHOD(void, EntryParityCorrectionList, jstring unit, jobject session, jobject request) {
  update(env, QV_EntryParityCorrectionList, unit, session, request);
}

NATIVE_METHOD(jobject, GetParityCorrectionStatusList, jstring unit, jobject session) {
  return query(env, QV_GetParityCorrectionStatusList, unit, session);
}

NATIVE_METHOD(jobject, GetLuOwnership, jstring unit, jobject session) {
  return query(env, QV_GetLuOwnership, unit, session);
}

NATIVE_METHOD(void, SetLuOwnership, jstring unit, jobject session, jobject info) {
  update(env, QV_SetLuOwnership, unit, session, info);
}

DEPARTS(GetLogicalUnit, kPartialDeparts);
NATIVE_METHOD(jobjectArray, GetLogicalUnit, jstring unit, jobject session) {
  return partialQuery(env, QV_GetLogicalUnit, unit, session);
}

DEPARTS(
    LogicalUnitFormatStatusList,
    "flushes nothing itself, takes a null name for an empty one, and returns a list that cannot "
    "be built as null without 2817",
    .acceptsNullText = true);
NATIVE_METHOD(jobject, LogicalUnitFormatStatusList, jstring unit) {
  UnitName name;
  copyOptionalText(env, unit, name);
  const OwnRecord<LuFormatStatusList> list;
  if (!list) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  const int result = QV_LogicalUnitFormatStatusList(&name, list.get());
  if (result != 0) {
    throwArrayException(env, result);
    return nullptr;
  }
  return build(env, ClassOf<LuFormatStatusList>::kMap, list.get());
}
