// Moving logical units inside an array, and whole arrays.
#include "arraylib/replication.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(LuMigrationReserve, reserve_lu);
QUORVELJ_CLASS(LuMigrationState, lun);
QUORVELJ_CLASS(LuMigrationReserveLUInfo, lun, lu_state);
QUORVELJ_CLASS(LuMigrationPairInfo, pvol_lun, pvol_rg_num, svol_lun, svol_rg_num, copying_pace,
               owner_id, migration_state, percent, migration_error);
QUORVELJ_CLASS(LuMigrationInformation, option, reserve_lu_count, pair_lu_count, reserve_lu,
               pair_lu);
QUORVELJ_CLASS(AutoMigrationInformation, state, copy_percent, delete_percent, copy_speed,
               migration_error, usable_status, upgrade_func_valid, upgrade_func);
QUORVELJ_CLASS(AutoMigrationPace, copy_speed);
QUORVELJ_CLASS(AutoMigrationAccessPathNetwork, dhcp_mode, ip_address, subnet, gateway,
               linkspeed_duplex);
QUORVELJ_CLASS(AutoMigrationAccessPath, ctl, mainte_ip_change_mode, newarray_ctl,
               newarray_mainte_ip_change_mode);

NATIVE_METHOD(void, AddLuMigrationReserveLU, jstring unit, jobject session, jobject reserve) {
  update(env, QV_AddLuMigrationReserveLU, unit, session, reserve);
}

NATIVE_METHOD(void, DeleteLuMigrationReserveLU, jstring unit, jobject session, jobject reserve) {
  update(env, QV_DeleteLuMigrationReserveLU, unit, session, reserve);
}

NATIVE_METHOD(void, StartLuMigration, jstring unit, jobject session, jobject request) {
  update(env, QV_StartLuMigration, unit, session, request);
}

NATIVE_METHOD(void, CancelLuMigration, jstring unit, jobject session, jobject request) {
  update(env, QV_CancelLuMigration, unit, session, request);
}

NATIVE_METHOD(void, SplitLuMigration, jstring unit, jobject session, jobject request) {
  update(env, QV_SplitLuMigration, unit, session, request);
}

NATIVE_METHOD(void, SplitLuMigrationFreeOwner, jstring unit, jobject session, jobject request) {
  update(env, QV_SplitLuMigrationFreeOwner, unit, session, request);
}

NATIVE_METHOD(jobject, GetLuMigrationState, jstring unit, jobject session) {
  return query(env, QV_GetLuMigrationState, unit, session);
}

NATIVE_METHOD(jobject, GetLuMigrationInformation, jstring unit, jobject session) {
  return query(env, QV_GetLuMigrationInformation, unit, session);
}

NATIVE_METHOD(jobject, GetAutoMigrationInformation, jstring unit, jobject session) {
  return query(env, QV_GetAutoMigrationInformation, unit, session);
}

NATIVE_METHOD(void, StartAutoMigration, jstring unit, jobject session, jobject pace) {
  update(env, QV_StartAutoMigration, unit, session, pace);
}

NATIVE_METHOD(void, ChangeAutoMigrationCopyPace, jstring unit, jobject session, jobject pace) {
  update(env, QV_ChangeAutoMigrationCopyPace, unit, session, pace);
}

NATIVE_METHOD(void, ChangeAutoMigrationAccessPath, jstring unit, jobject session, jobject path) {
  update(env, QV_ChangeAutoMigrationAccessPath, unit, session, path);
}

NATIVE_METHOD(void, DeleteAutoMigrationData, jstring unit, jobject session) {
  update(env, QV_DeleteAutoMigrationData, unit, session);
}

NATIVE_METHOD(void, ResetAutoMigrationUsableStatus, jstring unit, jobject session) {
  update(env, QV_ResetAutoMigrationUsableStatus, unit, session);
}

NATIVE_METHOD(void, RebootAutoMigrationUnit, jstring unit, jobject session) {
  update(env, QV_RebootAutoMigrationUnit, unit, session);
}

NATIVE_METHOD(void, ShutdownAutoMigrationUnit, jstring unit, jobject session) {
  update(env, QV_ShutdownAutoMigrationUnit, unit, session);
}
