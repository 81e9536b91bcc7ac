// What a pair of performance snapshots costs: the whole call, and the two tables that make up most
// of it against the same JNI calls written out.
#include <malloc.h>

#include <cstdint>
#include <cstdio>
#include <memory>

#include "arraylib/performance.h"
#include "benchmarks/comparison.h"
#include "bridge/class_map.h"
#include "simulator/control.h"
#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"

QUORVELJ_MAP(kTables, PerformanceAll, QUORVELJ_FIELD(PerformanceAll, lu),
             QUORVELJ_FIELD(PerformanceAll, lu_ex));

namespace {

jobject newByHand(JNIEnv* env, const char* className) {
  std::fflush(stdout);
  const jclass created = env->FindClass(className);
  if (created == nullptr) {
    return nullptr;
  }
  const jmethodID constructor = env->GetMethodID(created, "<init>", "()V");
  if (constructor == nullptr) {
    return nullptr;
  }
  const jobject object = env->NewObject(created, constructor);
  if (object != nullptr) {
    env->DeleteLocalRef(created);
  }
  return object;
}

bool storeByHand(JNIEnv* env, jobject object, const char* name, const char* signature,
                 jobject value) {
  if (value == nullptr) {
    return false;
  }
  const jclass type = env->GetObjectClass(object);
  if (type == nullptr) {
    return false;
  }
  const jfieldID field = env->GetFieldID(type, name, signature);
  if (field == nullptr) {
    return false;
  }
  env->SetObjectField(object, field, value);
  if (env->ExceptionOccurred() != nullptr) {
    return false;
  }
  env->DeleteLocalRef(type);
  env->DeleteLocalRef(value);
  return true;
}

template <class Record>
jobjectArray arrayByHand(JNIEnv* env, const char* className, const Record* records, jsize length,
                         jobject (*build)(JNIEnv*, const Record&)) {
  const jclass type = env->FindClass(className);
  if (type == nullptr) {
    return nullptr;
  }
  const jobjectArray array = env->NewObjectArray(length, type, nullptr);
  env->DeleteLocalRef(type);
  if (array == nullptr) {
    return nullptr;
  }
  for (jsize index = 0; index < length; ++index) {
    const jobject element = build(env, records[index]);
    if (element == nullptr) {
      return nullptr;
    }
    env->SetObjectArrayElement(array, index, element);
    if (env->ExceptionOccurred() != nullptr) {
      return nullptr;
    }
    env->DeleteLocalRef(element);
  }
  return array;
}

// One look-up and one store in the running function, as code written for a class has them.
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

jobject commandsByHand(JNIEnv* env, const CommandAll_Info& record) {
  const jobject object = newByHand(env, "tessaly/str/diskarray/CommandAll_Info");
  if (object == nullptr) {
    return nullptr;
  }
  jclass type = nullptr;
  jfieldID field = nullptr;
  SET(valid)
  SET(support)
  SET(read_count)
  SET(write_count)
  SET(read_cache)
  SET(write_cache)
  SET(read_size)
  SET(write_size)
  SET(online_verify_count)
  return object;
}

jobject luCommandsByHand(JNIEnv* env, const LuEx_CommandInfo& record) {
  const jobject object = newByHand(env, "tessaly/str/diskarray/LuEx_CommandInfo");
  if (object == nullptr) {
    return nullptr;
  }
  jclass type = nullptr;
  jfieldID field = nullptr;
  SET(valid)
  SET(support)
  SET(command_count)
  SET(command_total_time_h)
  SET(command_total_time_l)
  SET(command_max_time_h)
  SET(command_max_time_l)
  SET(delay_command_count_upto300)
  SET(delay_command_count_upto500)
  SET(delay_command_count_upto1000)
  SET(delay_command_count_ormore1000)
  return object;
}

jobject luByHand(JNIEnv* env, const LuEx_Info& record) {
  const jobject object = newByHand(env, "tessaly/str/diskarray/LuEx_Info");
  if (object == nullptr) {
    return nullptr;
  }
  jclass type = nullptr;
  jfieldID field = nullptr;
  SET(valid)
  SET(support)
#define STORE(name)                                                                \
  if (!storeByHand(env, object, #name, "Ltessaly/str/diskarray/LuEx_CommandInfo;", \
                   luCommandsByHand(env, record.name))) {                          \
    return nullptr;                                                                \
  }
  STORE(read_hit)
  STORE(write_hit)
  STORE(read_miss)
  STORE(write_miss)
  STORE(read_job)
  STORE(write_job)
  SET(tag_count)
  SET(total_tag_count)
  SET(total_tag_set_count)
  return object;
}

jobject tablesByHand(JNIEnv* env, const PerformanceAll& record) {
  const jobject object = newByHand(env, "tessaly/str/diskarray/PerformanceAll");
  if (object == nullptr ||
      !storeByHand(env, object, "lu", "[Ltessaly/str/diskarray/CommandAll_Info;",
                   arrayByHand(env, "tessaly/str/diskarray/CommandAll_Info", record.lu, 8192,
                               commandsByHand)) ||
      !storeByHand(
          env, object, "lu_ex", "[Ltessaly/str/diskarray/LuEx_Info;",
          arrayByHand(env, "tessaly/str/diskarray/LuEx_Info", record.lu_ex, 8192, luByHand))) {
    return nullptr;
  }
  return object;
}

void release(JNIEnv* env, jobject object) {
  if (object == nullptr) {
    std::abort();
  }
  env->DeleteLocalRef(object);
}

/// The tables of one snapshot that have an element an LU: 65,536 of its objects.
void BM_BuildLuTables(benchmark::State& state) {
  JNIEnv* const env = jvm();
  const auto record = std::make_unique<PerformanceAll>();
  compare(
      state, [&] { release(env, quorvelj::build(env, kTables, record.get())); },
      [&] { release(env, tablesByHand(env, *record)); }, 1);
}

/// Bytes of Java's heap in use after a collection.
double usedHeap(JNIEnv* env) {
  const jclass type = env->FindClass("java/lang/Runtime");
  const jobject runtime = env->CallStaticObjectMethod(
      type, env->GetStaticMethodID(type, "getRuntime", "()Ljava/lang/Runtime;"));
  env->CallVoidMethod(runtime, env->GetMethodID(type, "gc", "()V"));
  const jlong total = env->CallLongMethod(runtime, env->GetMethodID(type, "totalMemory", "()J"));
  const jlong free = env->CallLongMethod(runtime, env->GetMethodID(type, "freeMemory", "()J"));
  env->DeleteLocalRef(runtime);
  env->DeleteLocalRef(type);
  return static_cast<double>(total - free);
}

/// Bytes that malloc has handed out.
double allocated() {
  const struct mallinfo2 information = mallinfo2();
  return static_cast<double>(information.uordblks + information.hblkhd);
}

double allocatedInCall = 0;

/// A whole call as Java makes it, on a library that returns zeros: both snapshots, all tables.
void BM_GetPerformanceAll(benchmark::State& state) {
  JNIEnv* const env = jvm();
  quorvelSimReset();
  quorvelSimPrepareOutput("*", "", 1);
  const jstring unit = env->NewStringUTF("unit");
  const jobject session = newByHand(env, "tessaly/str/diskarray/QVSessionInfo");
  const auto callOnce = [&] {
    const jobjectArray result =
        Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetPerformanceAll(env, nullptr, unit,
                                                                             session, 0);
    if (result == nullptr || env->GetObjectArrayElement(result, 1) == nullptr) {
      std::abort();
    }
    return result;
  };
  constexpr double kMegabyte = 1 << 20;
  env->PushLocalFrame(16);
  const double heapBefore = usedHeap(env);
  const double allocatedBefore = allocated();
  quorvelSimObserve([](const char*) { allocatedInCall = allocated(); });
  callOnce();
  quorvelSimObserve(nullptr);
  state.counters["native_MB"] = (allocatedInCall - allocatedBefore) / kMegabyte;
  state.counters["heap_MB"] = (usedHeap(env) - heapBefore) / kMegabyte;
  env->PopLocalFrame(nullptr);
  for (auto _ : state) {
    env->PushLocalFrame(16);
    callOnce();
    env->PopLocalFrame(nullptr);
  }
  quorvelSimReset();
  env->DeleteLocalRef(session);
  env->DeleteLocalRef(unit);
}

BENCHMARK(BM_BuildLuTables)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_GetPerformanceAll)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
