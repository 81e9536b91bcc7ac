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

constexpr char kDiscoveryDeparts[] =
    "where there is no memory for the result, the request is released before the exception is "
    "thrown";

template <class Function>
jobject discover(Env env, Function function, jobject request) {
  LibraryCall library(env, function, request);
  library.enter();
  DiscoverUnit* found = nullptr;
  if (library.allocateInputs()) {
    library.readInputs();
    found = allocate<DiscoverUnit>();
  }
  if (found == nullptr) {
    library.releaseInputs();
    throwArrayException(env, kOutOfMemory);
    return nullptr;
  }
  return finishQuery(env, library.call(found), found);
}

}  // namespace

DEPARTS(DiscoverUnitInformation, kDiscoveryDeparts, .releasesOnRefusal = true);
NATIVE_METHOD(jobject, DiscoverUnitInformation, jobject request) {
  return discover(env, QV_DiscoverUnitInformation, request);
}

DEPARTS(DiscoverUnitInformationEx, kDiscoveryDeparts, .releasesOnRefusal = true);
NATIVE_METHOD(jobject, DiscoverUnitInformationEx, jobject request) {
  return discover(env, QV_DiscoverUnitInformationEx, request);
}

DEPARTS(GetUnitCount, "nothing is flushed, and a failure returns -1", .failureValue = -1);
NATIVE_METHOD(jint, GetUnitCount) {
  std::int32_t count = 0;
  const int result = QV_GetUnitCount(&count);
  if (result != 0) {
    throwArrayException(env, result);
    return -1;
  }
  return count;
}

DEPARTS(
    GetUnitParamTable,
    "the count is the caller's, the records are zero-filled, no memory for them is null without "
    "an exception, an array that cannot be made is code -1, an element that cannot be built "
    "leaves the rest of the array null, nothing is flushed on entry, and standard output is "
    "flushed after the call also where it failed",
    .silentWithoutMemory = true);
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
