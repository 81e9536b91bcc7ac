// Registering, discovering, changing and deleting units.
#include "arraylib/units.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(QVUnitParam, unit_name, group_name, connect_type, qv_type, device_type, unit_conf,
               alert, ctl0, ctl1, serial, ssl_used);
QUORVELJ_CLASS(DiscoverUnitRequest, connect_type, ip_dev, communication_mode);
QUORVELJ_CLASS(DiscoverUnit, connect_type, ip_dev, qv_type, device_type, unit_conf, ctlno, serial,
               communication_port);
QUORVELJ_CLASS(AdditionalUnitRequest, mode);
QUORVELJ_CLASS(AdditionalUnitInformation, inquiry_time, polling_time, time_out, add_unit_num,
               connect_unit_num, unit_type, unit_status, unit_status_subcode);

NATIVE_METHOD(void, UnitAdd, jobject param) { update(env, QV_UnitAdd, param); }
NATIVE_METHOD(void, UnitAddByIP, jobject param) { update(env, QV_UnitAddByIP, param); }

NATIVE_METHOD(void, UnitChange, jstring unit, jobject param) {
  update(env, QV_UnitChange, unit, param);
}

NATIVE_METHOD(void, UnitChangeByIP, jstring unit, jobject param) {
  update(env, QV_UnitChangeByIP, unit, param);
}

NATIVE_METHOD(void, UnitDelete, jstring unit) { update(env, QV_UnitDelete, unit); }

NATIVE_METHOD(jobject, GetUnitParam, jstring unit) { return query(env, QV_GetUnitParam, unit); }

NATIVE_METHOD(void, AddAdditionalUnit, jstring unit, jobject session, jobject request) {
  update(env, QV_AddAdditionalUnit, unit, session, request);
}

NATIVE_METHOD(jobject, GetAdditionalUnitInformation, jstring unit, jobject session) {
  return query(env, QV_GetAdditionalUnitInformation, unit, session);
}

namespace {

// Departs from the query frame: where there is no memory for the result, the request is released
// before the exception is thrown.
jobject discover(JNIEnv* env, int (*function)(const DiscoverUnitRequest*, DiscoverUnit*),
                 jobject object) {
  flushOutput();
  Inputs<const DiscoverUnitRequest*> request(object);
  DiscoverUnit* found = nullptr;
  if (request.allocateAndRead(env)) {
    found = allocate<DiscoverUnit>();
  }
  if (found == nullptr) {
    request.releaseAll();
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  const int result = request.call(function, found);
  request.releaseAll();
  const jobject built = finishQuery(env, result, ClassOf<DiscoverUnit>::kMap, found);
  if (built != nullptr) {
    flushOutput();
  }
  return built;
}

}  // namespace

NATIVE_METHOD(jobject, DiscoverUnitInformation, jobject request) {
  return discover(env, QV_DiscoverUnitInformation, request);
}

NATIVE_METHOD(jobject, DiscoverUnitInformationEx, jobject request) {
  return discover(env, QV_DiscoverUnitInformationEx, request);
}

// Departs from the value frame: nothing is flushed, and a failure returns -1.
NATIVE_METHOD(jint, GetUnitCount) {
  std::int32_t count = 0;
  const int result = QV_GetUnitCount(&count);
  if (result != 0) {
    throwArrayException(env, result);
    return -1;
  }
  return count;
}

// Departs from the query frame: the count is the caller's, the records are zero-filled, no memory
// for them is null without an exception, an array that cannot be made is code -1, and an element
// that cannot be built leaves the rest of the array null. Nothing is flushed on entry; on the way
// out standard output is flushed whatever came of it.
NATIVE_METHOD(jobjectArray, GetUnitParamTable, jint count) {
  auto* const table = static_cast<QVUnitParam*>(
      allocateZeroedRecords(static_cast<std::size_t>(count), sizeof(QVUnitParam)));
  if (table == nullptr) {
    return nullptr;
  }
  int result = QV_GetUnitParamTable(count, table);
  jobjectArray array = nullptr;
  if (result == 0) {
    array = newObjectArrayByName(env, ClassOf<QVUnitParam>::kName, count);
    if (array == nullptr) {
      result = -1;
    } else {
      fillPartialArray(env, array, ClassOf<QVUnitParam>::kMap, table, count, sizeof(QVUnitParam));
    }
  }
  flushOutput();
  releaseRecord(table);
  if (result != 0) {
    throwArrayException(env, result);
  }
  return array;
}
