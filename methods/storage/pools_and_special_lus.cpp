// Pools, virtual volumes, integrated and data-management LUs, and the LU guard.
#include "arraylib/storage.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(PoolDetailInfo, pool_no, pool_status, allcapa_h, allcapa_l, usedcapa_h, usedcapa_l,
               used_rate, threshold, lu_count, lu);
QUORVELJ_CLASS(PoolCtlInfo, pool_enable_count, pool);
QUORVELJ_CLASS(PoolSysInfo, pool_enable_count, pool);
QUORVELJ_CLASS(PoolInfo, option, ctl, sys);
QUORVELJ_CLASS(PoolChangeRequest, ctl_no, pool_no, poolinfo_chg_index, threshold);
QUORVELJ_CLASS(PoolLUListRequest, lu_count, lu);
QUORVELJ_CLASS(VvolDetailInformation, lun, capacity_specify, capacity_h, capacity_l);
QUORVELJ_CLASS(VvolInformation, vvol_count, lu);
QUORVELJ_CLASS(UniteLU, unite_info, status, capacity, child_lu_count, child_lun);
QUORVELJ_CLASS(IntegrationLUInfo, integration_lu, unite_info);
QUORVELJ_CLASS(UniteLU2, unite_info, status, capacity, capacity_h, capacity_l, child_lu_count,
               next_lun);
QUORVELJ_CLASS(IntegrationLUInfo2, integration_lu, parent_count, parent_lu, unite_info);
QUORVELJ_CLASS(IntegrationRequest, operation, parent_lun, child_lun, child_count, child_lu);
QUORVELJ_CLASS(DMLUDetail, dmlu_valid, set_valid, dmlu_lu);
QUORVELJ_CLASS(DMLUInformation, mode, dmlu_count, dmlu);
QUORVELJ_CLASS(LuGuard, lu_valid, capacity, capacity_h, capacity_l, access_level_valid,
               access_level_status, access_level, svol_disable, access_inhibit_mode, access_attr,
               changeable_attr, retention_term);
QUORVELJ_CLASS(LuGuardInformation, option, expirationlock, lu);
QUORVELJ_CLASS(LuAccessLevelRequest, lu, access_level, retention_term);
QUORVELJ_OPAQUE_CLASS(TurboLu);

NATIVE_METHOD(jobject, GetPoolInformation, jstring unit, jobject session) {
  return query(env, QV_GetPoolInformation, unit, session);
}

NATIVE_METHOD(void, ChangePoolInformation, jstring unit, jobject session, jobject request) {
  update(env, QV_ChangePoolInformation, unit, session, request);
}

NATIVE_METHOD(void, PoolLUAdd, jstring unit, jobject session, jint first, jint second, jint third) {
  update(env, QV_PoolLUAdd, unit, session, first, second, third);
}

NATIVE_METHOD(void, PoolLUAddList, jstring unit, jobject session, jint controller, jint pool,
              jobject list) {
  update(env, QV_PoolLUAddList, unit, session, controller, pool, list);
}

NATIVE_METHOD(void, PoolLUAllDelete, jstring unit, jobject session, jint first, jint second) {
  update(env, QV_PoolLUAllDelete, unit, session, first, second);
}

NATIVE_METHOD(void, CreateVVOL, jstring unit, jobject session, jint first, jint second,
              jint third) {
  update(env, QV_CreateVVOL, unit, session, first, second, third);
}

NATIVE_METHOD(void, CreateVVOLEx, jstring unit, jobject session, jobject volume) {
  update(env, QV_CreateVVOLEx, unit, session, volume);
}

NATIVE_METHOD(void, DeleteVVOL, jstring unit, jobject session, jint first, jint second) {
  update(env, QV_DeleteVVOL, unit, session, first, second);
}

NATIVE_METHOD(jobject, GetVVOLInformation, jstring unit, jobject session) {
  return query(env, QV_GetVVOLInformation, unit, session);
}

NATIVE_METHOD(jobject, IntegrationLUInfo, jstring unit) {
  return query(env, QV_IntegrationLUInfo, unit);
}

NATIVE_METHOD(jobject, IntegrationLUInfo2, jstring unit, jobject session) {
  return query(env, QV_IntegrationLUInfo2, unit, session);
}

NATIVE_METHOD(void, SetIntegrationLU, jstring unit, jobject session, jobject request) {
  update(env, QV_SetIntegrationLU, unit, session, request);
}

NATIVE_METHOD(jobject, GetDMLU, jstring unit, jobject session) {
  return query(env, QV_GetDMLU, unit, session);
}

NATIVE_METHOD(void, SetDMLU, jstring unit, jobject session, jobject information) {
  update(env, QV_SetDMLU, unit, session, information);
}

NATIVE_METHOD(jobject, GetLuGuardInformation, jstring unit, jobject session) {
  return query(env, QV_GetLuGuardInformation, unit, session);
}

NATIVE_METHOD(void, SetLuAccessLevel, jstring unit, jobject session, jobject request) {
  update(env, QV_SetLuAccessLevel, unit, session, request);
}

NATIVE_METHOD(void, SetSvolDisableMode, jstring unit, jobject session, jint first, jint second) {
  update(env, QV_SetSvolDisableMode, unit, session, first, second);
}

NATIVE_METHOD(void, ExtendRetentionTerm, jstring unit, jobject session, jint first, jint second) {
  update(env, QV_ExtendRetentionTerm, unit, session, first, second);
}

NATIVE_METHOD(void, SetExpirationLock, jstring unit, jobject session, jint value) {
  update(env, QV_SetExpirationLock, unit, session, value);
}

constexpr char kTurboDeparts[] =
    "does not flush standard output on entry, and takes a null name for an empty one";

DEPARTS(GetTurboLU, kTurboDeparts, .acceptsNullText = true);
NATIVE_METHOD(jobject, GetTurboLU, jstring unit, jobject session) {
  UnitName name;
  copyOptionalText(env, unit, name);
  Argument<const QVSessionInfo*> opened(session);
  if (!opened.allocate()) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  opened.read(env);
  auto* const turbo = allocate<TurboLu>();
  if (turbo == nullptr) {
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  const int result = QV_GetTurboLU(&name, opened.get(), turbo);
  opened.release();
  return finishQuery(env, result, turbo);
}

DEPARTS(SetTurboLU, kTurboDeparts, .acceptsNullText = true);
NATIVE_METHOD(void, SetTurboLU, jstring unit, jobject session, jobject object) {
  UnitName name;
  copyOptionalText(env, unit, name);
  Argument<const QVSessionInfo*> opened(session);
  Argument<const TurboLu*> turbo(object);
  const bool hasSession = opened.allocate();
  if (!turbo.allocate() || !hasSession) {
    throwArrayException(env, kOutOfMemory);
    opened.release();
    turbo.release();
    return;
  }
  // Behind a session that left an exception pending JNI forbids to read more.
  if (opened.read(env) == kOk || !exceptionPending(env)) {
    turbo.read(env);
  }
  const int result = QV_SetTurboLU(&name, opened.get(), turbo.get());
  opened.release();
  turbo.release();
  finishUpdate(env, result);
}
