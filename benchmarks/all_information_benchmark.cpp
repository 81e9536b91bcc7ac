// What the bundles cost, from the smallest slice to the whole array: the time of a call, its JNI
// objects aside, and the peak of the process's memory.
#include <sys/resource.h>

#include <climits>

#include "arraylib/all_information.h"
#include "benchmarks/comparison.h"
#include "simulator/control.h"
#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"

namespace {

template <class Method, class... Argument>
void run(benchmark::State& state, std::size_t recordBytes, Method method, Argument... arguments) {
  JNIEnv* const env = jvm();
  quorvelSimReset();
  quorvelSimForceResult("*", 0, INT_MAX);
  const jstring unit = env->NewStringUTF("unit");
  for (auto _ : state) {
    const jobject built = method(env, nullptr, unit, nullptr, arguments...);
    if (built == nullptr) {
      state.SkipWithError("nothing was built");
      break;
    }
    env->DeleteLocalRef(built);
  }
  env->DeleteLocalRef(unit);
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  state.counters["record_bytes"] = static_cast<double>(recordBytes);
  state.counters["peak_MiB"] = static_cast<double>(usage.ru_maxrss) / 1024;
}

#define SLICE_BENCHMARK(slice)                                                              \
  void BM_AllInfo_##slice(benchmark::State& state) {                                        \
    run(state, sizeof(ArrayAllInfo_##slice),                                                \
        Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetAllInfo_1##slice, jobject{}); \
  }                                                                                         \
  BENCHMARK(BM_AllInfo_##slice)->Unit(benchmark::kMillisecond)

SLICE_BENCHMARK(BaseAdditional);
SLICE_BENCHMARK(HG);
SLICE_BENCHMARK(Tuning);
SLICE_BENCHMARK(Config);
SLICE_BENCHMARK(Base);
SLICE_BENCHMARK(iSCSI);
SLICE_BENCHMARK(Replication);
SLICE_BENCHMARK(Mapping);

void BM_AllInformationLite(benchmark::State& state) {
  run(state, sizeof(ArrayAllInformation),
      Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetAllInformationLite);
}
BENCHMARK(BM_AllInformationLite)->Unit(benchmark::kMillisecond);

void BM_AllInformation(benchmark::State& state) {
  run(state, sizeof(ArrayAllInformation),
      Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetAllInformation);
}
BENCHMARK(BM_AllInformation)->Unit(benchmark::kMillisecond);

}  // namespace
