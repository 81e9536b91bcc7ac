// The configuration of an array's SNMP agent.
#include "arraylib/alerts.h"
#include "methods/native_methods.h"

using namespace quorvelj;

QUORVELJ_CLASS(SnmpConfigInformation, set_valid, conf, name);

NATIVE_METHOD(jobject, LoadSnmpConfig, jstring pathA, jstring pathB) {
  return query(env, QV_LoadSnmpConfig, pathA, pathB);
}

NATIVE_METHOD(void, SaveSnmpConfig, jstring pathA, jstring pathB, jobject config) {
  update(env, QV_SaveSnmpConfig, pathA, pathB, config);
}

NATIVE_METHOD(void, SetSnmpConfigonMemory, jstring unit, jobject session, jobject config) {
  update(env, QV_SetSnmpConfigonMemory, unit, session, config);
}

namespace {

constexpr char kFilesDepart[] = "the session's record is never released";

template <class Function>
void callWithFiles(Env env, Function function, jstring unit, jobject session, jstring first,
                   jstring second) {
  LibraryCall library(env, function, unit, session, first, second);
  if (library.begin()) {
    finishUpdate(env, library.callAndKeepInputs());
  }
}

}  // namespace

DEPARTS(SetSnmpConfig, kFilesDepart, .neverReleased = 1);
NATIVE_METHOD(void, SetSnmpConfig, jstring unit, jobject session, jstring first, jstring second) {
  callWithFiles(env, QV_SetSnmpConfig, unit, session, first, second);
}

DEPARTS(SnmpConfigOutput, kFilesDepart, .neverReleased = 1);
NATIVE_METHOD(void, SnmpConfigOutput, jstring unit, jobject session, jstring first,
              jstring second) {
  callWithFiles(env, QV_SnmpConfigOutput, unit, session, first, second);
}
