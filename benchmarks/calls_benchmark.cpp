// What the largest calls cost, from the smallest slice of the array to the whole of it: time, and
// the same with builders written out; JNI calls and local references; native memory and Java heap.
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "benchmarks/comparison.h"
#include "benchmarks/jni_counter.h"
#include "benchmarks/written_out.h"
#include "bridge/class_map.h"
#include "simulator/control.h"
#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"

#define METHOD(escaped) Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1##escaped

namespace {

constexpr double kMegabyte = 1e6;

// What the library answers with: texts everywhere, zeros as numbers.

void fillTexts(const quorvelj::ClassMap& map, std::byte* record) {
  for (const quorvelj::Field& field : map.fields) {
    std::size_t elements = 1;
    for (std::size_t dimension = 0; dimension < field.rank; ++dimension) {
      elements *= field.extents[dimension];
    }
    for (std::size_t index = 0; index < elements; ++index) {
      std::byte* const element = record + field.offset + index * field.elementBytes;
      if (field.element != nullptr) {
        fillTexts(*field.element, element);
      } else if (field.kind == quorvelj::FieldKind::kText) {
        std::snprintf(reinterpret_cast<char*>(element), field.elementBytes, "%s", "of this unit");
      }
    }
  }
}

template <class Output>
void prepare(const char* function) {
  using Record = std::remove_all_extents_t<Output>;
  std::vector<std::byte> answer(sizeof(Output));
  for (std::size_t offset = 0; offset < answer.size(); offset += sizeof(Record)) {
    fillTexts(quorvelj::ClassOf<Record>::kMap, answer.data() + offset);
  }
  quorvelSimReset();
  quorvelSimPrepareOutput(function, answer.data(), answer.size());
}

// The same calls without the bridge's frames and maps.

void copyName(JNIEnv* env, jstring text, UnitName& name) {
  name[0] = '\0';
  if (env->GetStringUTFLength(text) > 0) {
    const char* const characters = env->GetStringUTFChars(text, nullptr);
    std::snprintf(name, sizeof name, "%s", characters);
    env->ReleaseStringUTFChars(text, characters);
  }
}

template <class Record>
Record* allocateRecord() {
  auto* const record = static_cast<Record*>(std::malloc(sizeof(Record)));
  if (record == nullptr) {
    std::abort();
  }
  return record;
}

/// A query whose inputs, a session and perhaps a request, are null in Java.
template <class Output, class Function, class Build, class... Input>
jobject callByHand(JNIEnv* env, jstring unit, Function function, Build build, Input*... inputs) {
  std::fflush(stdout);
  UnitName name;
  copyName(env, unit, name);
  auto* const output = allocateRecord<Output>();
  const int result = function(&name, inputs..., output);
  (std::free(inputs), ...);
  const jobject object = result == 0 ? build(env, *output) : nullptr;
  std::free(output);
  std::fflush(stdout);
  return object;
}

/// The list of all logical units, whose elements are stored without a look at exceptions.
jobject listByHand(JNIEnv* env, const LogicalUnit (&list)[8192]) {
  const jobjectArray array =
      written_out::newArray(env, "tessaly/str/diskarray/LogicalUnit", std::size(list));
  for (jsize index = 0; array != nullptr && index < jsize{8192}; ++index) {
    const jobject element = written_out::buildLogicalUnit(env, list[index]);
    if (element == nullptr) {
      break;
    }
    env->SetObjectArrayElement(array, index, element);
    env->DeleteLocalRef(element);
  }
  return array;
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
JniCounts reportCounts(benchmark::State& state, JNIEnv* env, Call call) {
  jobject built = nullptr;
  JniCounts counts = countJni(env, [&] { built = call(); });
  release(env, built);
  state.counters["jni_calls"] = static_cast<double>(counts.total());
  state.counters["objects"] = static_cast<double>(counts.objects);
  state.counters["references"] = static_cast<double>(counts.references);
  return counts;
}

/// Compares what builds the same object by map and by hand; their JNI calls must be as many.
template <class ByMap, class ByHand>
void compareBuilding(benchmark::State& state, JNIEnv* env, ByMap byMap, ByHand byHand) {
  // The first call loads the classes, for which the machine makes JNI calls of its own.
  release(env, byMap());
  const JniCounts handCounts = reportCounts(state, env, byHand);
  if (reportCounts(state, env, byMap).calls != handCounts.calls) {
    state.SkipWithError("not the same JNI calls");
    return;
  }
  compare(
      state, [&] { release(env, byMap()); }, [&] { release(env, byHand()); }, 1);
}

/// One call by the bridge against the same by hand.
template <class ByMap, class ByHand>
void measure(benchmark::State& state, ByMap byMap, ByHand byHand) {
  JNIEnv* const env = jvm();
  const jstring unit = env->NewStringUTF("unit");
  const auto map = [&] { return byMap(env, unit); };
  reportMemory(state, env, map);
  compareBuilding(state, env, map, [&] { return byHand(env, unit); });
  env->DeleteLocalRef(unit);
}

/// The bridge alone.
template <class ByMap>
void measure(benchmark::State& state, ByMap byMap) {
  JNIEnv* const env = jvm();
  const jstring unit = env->NewStringUTF("unit");
  const auto map = [&] { return byMap(env, unit); };
  reportMemory(state, env, map);
  reportCounts(state, env, map);
  for (auto _ : state) {
    release(env, map());
  }
  env->DeleteLocalRef(unit);
}

/// A query by unit and session.
#define QUERY(name, Output, build)                                                                 \
  void BM_##name(benchmark::State& state) {                                                        \
    prepare<Output>("QV_" #name);                                                                  \
    measure(                                                                                       \
        state,                                                                                     \
        [](JNIEnv* env, jstring unit) { return METHOD(name)(env, nullptr, unit, nullptr); },       \
        [](JNIEnv* env, jstring unit) {                                                            \
          return callByHand<Output>(env, unit, QV_##name, build, allocateRecord<QVSessionInfo>()); \
        });                                                                                        \
  }                                                                                                \
  BENCHMARK(BM_##name)->Unit(benchmark::kMillisecond)

/// A query whose light form comes from the function `function` as well.
#define LIGHT_QUERY(name, Output, function)                                                       \
  void BM_##name(benchmark::State& state) {                                                       \
    prepare<Output>(#function);                                                                   \
    measure(state,                                                                                \
            [](JNIEnv* env, jstring unit) { return METHOD(name)(env, nullptr, unit, nullptr); }); \
  }                                                                                               \
  BENCHMARK(BM_##name)->Unit(benchmark::kMillisecond)

#define SLICE(name)                                                                   \
  void BM_GetAllInfo_##name(benchmark::State& state) {                                \
    prepare<ArrayAllInfo_##name>("QV_GetAllInfo_" #name);                             \
    measure(                                                                          \
        state,                                                                        \
        [](JNIEnv* env, jstring unit) {                                               \
          return METHOD(GetAllInfo_1##name)(env, nullptr, unit, nullptr, nullptr);    \
        },                                                                            \
        [](JNIEnv* env, jstring unit) {                                               \
          return callByHand<ArrayAllInfo_##name>(                                     \
              env, unit, QV_GetAllInfo_##name, written_out::buildArrayAllInfo_##name, \
              allocateRecord<QVSessionInfo>(), allocateRecord<ControllerRequest>());  \
        });                                                                           \
  }                                                                                   \
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
LIGHT_QUERY(GetAllInformationLite, ArrayAllInformation, QV_GetAllInformation);
QUERY(GetAllInformation, ArrayAllInformation, written_out::buildArrayAllInformation);

QUERY(GetLogicalUnit, LogicalUnit[8192], listByHand);
QUERY(GetLuMappingListAll, LuMapping, written_out::buildLuMapping);
QUERY(GetPairInformation, PairInfo, written_out::buildPairInfo);
LIGHT_QUERY(GetPairInformationLite, PairInfo, QV_GetPairInformation);
LIGHT_QUERY(GetPairInformationLite2, PairInfo, QV_GetPairInformation);

/// One of the two snapshots of the performance counters, which the bridge builds alike.
void BM_BuildPerformanceAll(benchmark::State& state) {
  JNIEnv* const env = jvm();
  const auto record = std::make_unique<PerformanceAll>();
  const quorvelj::ClassMap& map = quorvelj::ClassOf<PerformanceAll>::kMap;
  compareBuilding(
      state, env, [&] { return quorvelj::build(env, map, record.get()); },
      [&] { return written_out::buildPerformanceAll(env, *record); });
}
BENCHMARK(BM_BuildPerformanceAll)->Unit(benchmark::kMillisecond);

/// A whole call for both, on a library that returns zeros.
void BM_GetPerformanceAll(benchmark::State& state) {
  quorvelSimReset();
  quorvelSimPrepareOutput("*", "", 1);
  measure(state, [](JNIEnv* env, jstring unit) {
    return METHOD(GetPerformanceAll)(env, nullptr, unit, nullptr, 0);
  });
}
BENCHMARK(BM_GetPerformanceAll)->Unit(benchmark::kMillisecond);

}  // namespace
