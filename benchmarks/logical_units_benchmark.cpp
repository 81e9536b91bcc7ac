// What the list of all logical units costs against the same JNI calls written out by hand.
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "arraylib/storage.h"
#include "benchmarks/comparison.h"
#include "bridge/class_map.h"
#include "methods/native_methods.h"
#include "simulator/control.h"

namespace {

// clang-format off
#define ALL_FIELDS(each) \
  each(luNumber) each(rgNumber) each(raid_level) each(staging) each(capacity) each(capacity_h) \
  each(capacity_l) each(befor_lun) each(cachepart_no) each(pair_cachepart_valid) \
  each(pair_cachepart_no) each(current_cachepart_no) each(stripe) each(lu_use_type) \
  each(defaultCTL) each(currentCTL) each(status) each(hostblock) each(lu_valid) each(qf_status) \
  each(correction_status) each(rg_last_lu) each(unit_type) each(unit_type_sub_code)
// clang-format on

jobject buildByHand(JNIEnv* env, const LogicalUnit& record) {
  std::fflush(stdout);
  const jclass created = env->FindClass("tessaly/str/diskarray/LogicalUnit");
  if (created == nullptr) {
    return nullptr;
  }
  const jmethodID constructor = env->GetMethodID(created, "<init>", "()V");
  if (constructor == nullptr) {
    return nullptr;
  }
  const jobject object = env->NewObject(created, constructor);
  if (object == nullptr) {
    return nullptr;
  }
  env->DeleteLocalRef(created);
  jclass type = nullptr;
  jfieldID field = nullptr;
#define SET(name)                               \
  type = env->GetObjectClass(object);           \
  if (type == nullptr) {                        \
    return nullptr;                             \
  }                                             \
  field = env->GetFieldID(type, #name, "I");    \
  if (field == nullptr) {                       \
    return nullptr;                             \
  }                                             \
  env->SetIntField(object, field, record.name); \
  if (env->ExceptionOccurred() != nullptr) {    \
    return nullptr;                             \
  }                                             \
  env->DeleteLocalRef(type);
  ALL_FIELDS(SET)
  return object;
}

void readSessionByHand(JNIEnv* env, jobject object, QVSessionInfo* session) {
  const jclass type = env->GetObjectClass(object);
  const jfieldID field = env->GetFieldID(type, "session_id", "[B");
  const auto bytes = static_cast<jbyteArray>(env->GetObjectField(object, field));
  env->DeleteLocalRef(type);
  env->GetByteArrayRegion(bytes, 0, sizeof *session, reinterpret_cast<jbyte*>(session));
  if (env->ExceptionOccurred() == nullptr) {
    env->DeleteLocalRef(bytes);
  }
}

jobjectArray listByHand(JNIEnv* env, jstring unit, jobject sessionObject) {
  std::fflush(stdout);
  UnitName name;
  name[0] = '\0';
  if (env->GetStringUTFLength(unit) > 0) {
    const char* const characters = env->GetStringUTFChars(unit, nullptr);
    std::strncpy(name, characters, sizeof name - 1);
    name[sizeof name - 1] = '\0';
    env->ReleaseStringUTFChars(unit, characters);
  }
  auto* const session = static_cast<QVSessionInfo*>(std::malloc(sizeof(QVSessionInfo)));
  readSessionByHand(env, sessionObject, session);
  auto* const list = static_cast<LogicalUnit(*)[8192]>(std::malloc(sizeof(LogicalUnit[8192])));
  const int result = QV_GetLogicalUnit(&name, session, list);
  std::free(session);
  if (result != 0) {
    std::abort();
  }
  const jclass type = env->FindClass("tessaly/str/diskarray/LogicalUnit");
  const jobjectArray array = env->NewObjectArray(8192, type, nullptr);
  env->DeleteLocalRef(type);
  for (jsize index = 0; index < 8192; ++index) {
    const jobject element = buildByHand(env, (*list)[index]);
    if (element == nullptr) {
      break;
    }
    env->SetObjectArrayElement(array, index, element);
    env->DeleteLocalRef(element);
  }
  std::free(list);
  std::fflush(stdout);
  return array;
}

void release(JNIEnv* env, jobjectArray array) {
  if (array == nullptr || env->ExceptionCheck() == JNI_TRUE) {
    std::abort();
  }
  env->DeleteLocalRef(array);
}

/// Nanoseconds are those of a whole list of 8,192 logical units of 24 fields.
void BM_GetLogicalUnit(benchmark::State& state) {
  JNIEnv* const env = jvm();
  const std::byte everything[sizeof(LogicalUnit[8192])]{std::byte{1}};
  quorvelSimPrepareOutput("QV_GetLogicalUnit", everything, sizeof everything);
  const jstring unit = env->NewStringUTF("unit");
  const jclass type = env->FindClass("tessaly/str/diskarray/QVSessionInfo");
  const jobject session = env->NewObject(type, env->GetMethodID(type, "<init>", "()V"));
  compare(
      state,
      [&] {
        release(env, Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetLogicalUnit(
                         env, nullptr, unit, session));
      },
      [&] { release(env, listByHand(env, unit, session)); }, 1);
}

BENCHMARK(BM_GetLogicalUnit)->Unit(benchmark::kMillisecond);

}  // namespace
