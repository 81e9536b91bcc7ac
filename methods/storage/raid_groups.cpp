// RAID groups: listing, creating, expanding and deleting them, their drives and their areas.
#include "arraylib/storage.h"
#include "methods/native_methods.h"

using namespace quorvelj;

// The classes: their fields in the order in which they are filled and read.

QUORVELJ_CLASS(RaidGroup, rgnum, level, port, row, width, depth, minimum_capa, lastLBASet, lastLBA,
               rest_h, rest, lumaxcapa, unit_type, unit_type_sub_code);
QUORVELJ_CLASS(RgDetail, valid_index, rgnum, level, start_unit_no, start_hdu_no, parity_hdu_count,
               parity_count, minimum_capa, total_capa_h, total_capa_l, rest_capa_h, rest_capa_l,
               rg_type, lu_count);
QUORVELJ_CLASS(RgDriveInfo, valid_index, next_unit_no, next_hdu_no, paritygroup_no);
QUORVELJ_CLASS(RaidGroupInformation, rg_count, rg, rgdrv);
QUORVELJ_CLASS(CreateRgDrive, unit_no, hdu_no);
QUORVELJ_CLASS(CreateRaidGroup, create_mode, rgnum, level, drive_type, drive_capa, parity_hdu_count,
               parity_count, rgdrv);
QUORVELJ_CLASS(AreaInfo, areakind, lun, befor_lun, area_capa_h, area_capa_l);
QUORVELJ_CLASS(RGAreaInformation, rgnum, lumaxcapa, lumaxcapa_h, lumaxcapa_l, area_count, area);

// The regular methods: what happens to each argument follows from the library function's own.

NATIVE_METHOD(void, RaidGroupAdd, jstring unit, jobject group) {
  update(env, QV_RaidGroupAdd, unit, group);
}

NATIVE_METHOD(void, RaidGroupExpand, jstring unit, jobject group) {
  update(env, QV_RaidGroupExpand, unit, group);
}

NATIVE_METHOD(void, RaidGroupDelete, jstring unit, jobject session, jint rgnum) {
  update(env, QV_RaidGroupDelete, unit, session, rgnum);
}

NATIVE_METHOD(void, RaidGroupAllDelete, jstring unit, jobject session) {
  update(env, QV_RaidGroupAllDelete, unit, session);
}

NATIVE_METHOD(void, CreateRaidGroup, jstring unit, jobject session, jobject request) {
  update(env, QV_CreateRaidGroup, unit, session, request);
}

NATIVE_METHOD(jobject, GetRaidGroupInformation, jstring unit, jobject session) {
  return query(env, QV_GetRaidGroupInformation, unit, session);
}

NATIVE_METHOD(jobject, GetRGAreaInformation, jstring unit, jobject session, jint rgnum) {
  return query(env, QV_GetRGAreaInformation, unit, session, rgnum);
}

NATIVE_METHOD(jobject, GetRaidGroupCreationCapacity, jstring unit, jobject session,
              jobject request) {
  return query(env, QV_GetRaidGroupCreationCapacity, unit, session, request);
}

DEPARTS(GetRaidGroups, kPartialDeparts);
NATIVE_METHOD(jobjectArray, GetRaidGroups, jstring unit) {
  return partialQuery(env, QV_GetRaidGroups, unit);
}
