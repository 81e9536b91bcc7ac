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

// Departs from the update frame: the session's record is not released.
void callWithFiles(JNIEnv* env,
                   int (*function)(const UnitName*, const QVSessionInfo*, const FilePath*,
                                   const FilePath*),
                   jstring unit, jobject session, jstring first, jstring second) {
  flushOutput();
  Inputs<const UnitName*, const QVSessionInfo*, const FilePath*, const FilePath*> inputs(
      unit, session, first, second);
  if (!inputs.accept(env)) {
    return;
  }
  if (!inputs.allocateAndRead(env)) {
    throwArrayException(env, kOutOfMemory);
    return;
  }
  const int result = inputs.call(function);
  if (result != 0) {
    throwArrayException(env, result);
    return;
  }
  flushOutput();
}

}  // namespace

NATIVE_METHOD(void, SetSnmpConfig, jstring unit, jobject session, jstring first, jstring second) {
  callWithFiles(env, QV_SetSnmpConfig, unit, session, first, second);
}

NATIVE_METHOD(void, SnmpConfigOutput, jstring unit, jobject session, jstring first,
              jstring second) {
  callWithFiles(env, QV_SnmpConfigOutput, unit, session, first, second);
}
