// What the largest calls cost, from the smallest slice of the array to the whole of it: time; JNI
// calls and local references; native memory and Java heap.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "arraylib/all_information.h"
#include "arraylib/performance.h"
#include "benchmarks/jni_counter.h"
#include "benchmarks/machine.h"
#include "simulator/control.h"
#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"

#define METHOD(escaped) Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1##escaped

namespace {

constexpr double kMegabyte = 1e6;

/// The machine, started on first use.
JNIEnv* jvm() {
  static JNIEnv* const env = startMachine(QUORVELJ_CLASS_PATH, {"-Xms1g", "-Xmx1g"});
  return env;
}

// Memory.

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

/// A figure of /proc/self/status in bytes.
double status(const std::string& name) {
  std::ifstream file("/proc/self/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(name + ':')) {
      return std::stod(line.substr(name.size() + 1)) * 1024;
    }
  }
  std::abort();
}

double allocatedInLibrary = 0;

/// Megabytes of one call: what malloc holds for it while the library works, by how much it raises
/// the process at its most, and what its result holds of Java's heap.
template <class Call>
void reportMemory(benchmark::State& state, JNIEnv* env, Call call) {
  // Large records go back to the system when they are released.
  mallopt(M_MMAP_THRESHOLD, 1 << 20);
  const double heapBefore = usedHeap(env);
  std::ofstream peak("/proc/self/clear_refs");
  const bool startedAnew = static_cast<bool>(peak << "5" << std::flush);
  const double residentBefore = status("VmRSS");
  const double allocatedBefore = allocated();
  quorvelSimObserve([](const char*) { allocatedInLibrary = allocated(); });
  const jobject built = call();
  quorvelSimObserve(nullptr);
  state.counters["malloc_MB"] = (allocatedInLibrary - allocatedBefore) / kMegabyte;
  if (startedAnew) {
    state.counters["process_MB"] = (status("VmHWM") - residentBefore) / kMegabyte;
  }
  state.counters["heap_MB"] = (usedHeap(env) - heapBefore) / kMegabyte;
  release(env, built);
}

template <class Call>
void reportCounts(benchmark::State& state, JNIEnv* env, Call call) {
  jobject built = nullptr;
  const JniCounts counts = countJni(env, [&] { built = call(); });
  release(env, built);
  state.counters["jni_calls"] = static_cast<double>(counts.total());
  state.counters["objects"] = static_cast<double>(counts.objects);
  state.counters["references"] = static_cast<double>(counts.references);
}

template <class ByName>
void measure(benchmark::State& state, ByName byName) {
  JNIEnv* const env = jvm();
  const jstring unit = env->NewStringUTF("unit");
  const auto call = [&] { return byName(env, unit); };
  reportMemory(state, env, call);
  reportCounts(state, env, call);
  for (auto _ : state) {
    release(env, call());
  }
  env->DeleteLocalRef(unit);
}

/// A query by unit and session, of the library function `function`.
#define QUERY(name, Output, function)                                                             \
  void BM_##name(benchmark::State& state) {                                                       \
    quorvelSimReset();                                                                            \
    prepare<Output>(#function);                                                                   \
    measure(state,                                                                                \
            [](JNIEnv* env, jstring unit) { return METHOD(name)(env, nullptr, unit, nullptr); }); \
  }                                                                                               \
  BENCHMARK(BM_##name)->Unit(benchmark::kMillisecond)

#define SLICE(name)                                                            \
  void BM_GetAllInfo_##name(benchmark::State& state) {                         \
    quorvelSimReset();                                                         \
    prepare<ArrayAllInfo_##name>("QV_GetAllInfo_" #name);                      \
    measure(state, [](JNIEnv* env, jstring unit) {                             \
      return METHOD(GetAllInfo_1##name)(env, nullptr, unit, nullptr, nullptr); \
    });                                                                        \
  }                                                                            \
  BENCHMARK(BM_GetAllInfo_##name)->Unit(benchmark::kMillisecond)

SLICE(HG);
SLICE(BaseAdditional);
SLICE(Host);
SLICE(Tuning);
SLICE(Config);
SLICE(PP);
SLICE(Base);
SLICE(iSCSI);
SLICE(Mapping);
SLICE(Replication);
QUERY(GetAllInformationLite, ArrayAllInformation, QV_GetAllInformation);
QUERY(GetAllInformation, ArrayAllInformation, QV_GetAllInformation);

QUERY(GetLogicalUnit, LogicalUnit[8192], QV_GetLogicalUnit);
QUERY(GetLuMappingListAll, LuMapping, QV_GetLuMappingListAll);
QUERY(GetPairInformation, PairInfo, QV_GetPairInformation);
QUERY(GetPairInformationLite, PairInfo, QV_GetPairInformation);
QUERY(GetPairInformationLite2, PairInfo, QV_GetPairInformation);

/// A call for both controllers, on a library that returns zeros.
void BM_GetPerformanceAll(benchmark::State& state) {
  quorvelSimReset();
  quorvelSimPrepareOutput("*", "", 1);
  measure(state, [](JNIEnv* env, jstring unit) {
    return METHOD(GetPerformanceAll)(env, nullptr, unit, nullptr, 0);
  });
}
BENCHMARK(BM_GetPerformanceAll)->Unit(benchmark::kMillisecond);

}  // namespace
