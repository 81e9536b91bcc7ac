// The three forms of the pair information, 4,094 logical units of 32 pairs in the full one, and the
// full one against builders written out class by class.
#include <sys/resource.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "arraylib/replication.h"
#include "benchmarks/comparison.h"
#include "bridge/class_map.h"
#include "simulator/control.h"
#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"

namespace {

// By hand: a function for each class, a line for each field.

bool setObject(JNIEnv* env, jobject object, const char* name, const char* signature,
               jobject value) {
  if (value == nullptr) {
    return false;
  }
  const jclass type = env->GetObjectClass(object);
  const jfieldID field = type == nullptr ? nullptr : env->GetFieldID(type, name, signature);
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

bool setInt(JNIEnv* env, jobject object, const char* name, std::int32_t value) {
  const jclass type = env->GetObjectClass(object);
  const jfieldID field = type == nullptr ? nullptr : env->GetFieldID(type, name, "I");
  if (field == nullptr) {
    return false;
  }
  env->SetIntField(object, field, value);
  if (env->ExceptionOccurred() != nullptr) {
    return false;
  }
  env->DeleteLocalRef(type);
  return true;
}

void setText(JNIEnv* env, jobject object, const char* name, const char* value) {
  const jclass type = env->GetObjectClass(object);
  const jstring text = type == nullptr ? nullptr : env->NewStringUTF(value);
  const jfieldID field =
      text == nullptr ? nullptr : env->GetFieldID(type, name, "Ljava/lang/String;");
  if (field == nullptr) {
    return;
  }
  env->SetObjectField(object, field, text);
  if (env->ExceptionOccurred() == nullptr) {
    env->DeleteLocalRef(type);
    env->DeleteLocalRef(text);
  }
}

jobject create(JNIEnv* env, const char* className) {
  std::fflush(stdout);
  const jclass type = env->FindClass(className);
  const jmethodID constructor = type == nullptr ? nullptr : env->GetMethodID(type, "<init>", "()V");
  const jobject object = constructor == nullptr ? nullptr : env->NewObject(type, constructor);
  if (object != nullptr) {
    env->DeleteLocalRef(type);
  }
  return object;
}

template <class Record, std::size_t N>
jobjectArray createArray(JNIEnv* env, const char* className, const Record (&records)[N],
                         jobject (*build)(JNIEnv*, const Record&)) {
  const jclass type = env->FindClass(className);
  const jobjectArray array = type == nullptr ? nullptr : env->NewObjectArray(N, type, nullptr);
  if (array == nullptr) {
    return nullptr;
  }
  env->DeleteLocalRef(type);
  jsize index = 0;
  for (const Record& record : records) {
    const jobject element = build(env, record);
    if (element == nullptr) {
      return nullptr;
    }
    env->SetObjectArrayElement(array, index++, element);
    if (env->ExceptionOccurred() != nullptr) {
      return nullptr;
    }
    env->DeleteLocalRef(element);
  }
  return array;
}

template <class Time>
jobject buildTime(JNIEnv* env, const char* className, const Time& time) {
  const jobject object = create(env, className);
  return object != nullptr && setInt(env, object, "year", time.year) &&
                 setInt(env, object, "month", time.month) && setInt(env, object, "day", time.day) &&
                 setInt(env, object, "hour", time.hour) &&
                 setInt(env, object, "minute", time.minute) &&
                 setInt(env, object, "second", time.second)
             ? object
             : nullptr;
}

jobject buildMirror(JNIEnv* env, const MirrorLUInfo& mirror) {
  const jobject object = create(env, "tessaly/str/diskarray/MirrorLUInfo");
  if (object == nullptr || !setInt(env, object, "mirror_no", mirror.mirror_no) ||
      !setInt(env, object, "lun", mirror.lun) || !setInt(env, object, "ctl_no", mirror.ctl_no) ||
      !setInt(env, object, "pool_no", mirror.pool_no) ||
      !setInt(env, object, "pair_status", mirror.pair_status) ||
      !setInt(env, object, "pair_status_detail", mirror.pair_status_detail) ||
      !setInt(env, object, "usedcapa", mirror.usedcapa) ||
      !setInt(env, object, "usedcapa_h", mirror.usedcapa_h) ||
      !setInt(env, object, "usedcapa_l", mirror.usedcapa_l) ||
      !setInt(env, object, "changed_rate", mirror.changed_rate) ||
      !setInt(env, object, "synchronized_rate", mirror.synchronized_rate) ||
      !setObject(env, object, "time", "Ltessaly/str/diskarray/PairCreateTime;",
                 buildTime(env, "tessaly/str/diskarray/PairCreateTime", mirror.time)) ||
      !setObject(env, object, "split_time", "Ltessaly/str/diskarray/DateTime;",
                 buildTime(env, "tessaly/str/diskarray/DateTime", mirror.split_time))) {
    return nullptr;
  }
  setText(env, object, "add_message", mirror.add_message);
  if (!setInt(env, object, "ctg_valid", mirror.ctg_valid) ||
      !setInt(env, object, "ctg_no", mirror.ctg_no)) {
    return nullptr;
  }
  setText(env, object, "ctg_name", mirror.ctg_name);
  setText(env, object, "pair_name", mirror.pair_name);
  return setInt(env, object, "copy_speed", mirror.copy_speed) ? object : nullptr;
}

jobject buildLu(JNIEnv* env, const PairLUInfo& lu) {
  const jobject object = create(env, "tessaly/str/diskarray/PairLUInfo");
  return object != nullptr && setInt(env, object, "lun", lu.lun) &&
                 setInt(env, object, "capacity", lu.capacity) &&
                 setInt(env, object, "capacity_h", lu.capacity_h) &&
                 setInt(env, object, "capacity_l", lu.capacity_l) &&
                 setInt(env, object, "pool_usedcapa_h", lu.pool_usedcapa_h) &&
                 setInt(env, object, "pool_usedcapa_l", lu.pool_usedcapa_l) &&
                 setInt(env, object, "pool_usedrate", lu.pool_usedrate) &&
                 setInt(env, object, "mirror_count", lu.mirror_count) &&
                 setObject(
                     env, object, "m_info", "[Ltessaly/str/diskarray/MirrorLUInfo;",
                     createArray(env, "tessaly/str/diskarray/MirrorLUInfo", lu.m_info, buildMirror))
             ? object
             : nullptr;
}

jobject buildCapacity(JNIEnv* env, const PoolDetailCapa& capacity) {
  const jobject object = create(env, "tessaly/str/diskarray/PoolDetailCapa");
  return object != nullptr && setInt(env, object, "pool_no", capacity.pool_no) &&
                 setInt(env, object, "poolcapa_h", capacity.poolcapa_h) &&
                 setInt(env, object, "poolcapa_l", capacity.poolcapa_l)
             ? object
             : nullptr;
}

template <class Pools>
jobject buildPools(JNIEnv* env, const char* className, const Pools& pools) {
  const jobject object = create(env, className);
  return object != nullptr && setInt(env, object, "pool_enable_count", pools.pool_enable_count) &&
                 setObject(env, object, "pool", "[Ltessaly/str/diskarray/PoolDetailCapa;",
                           createArray(env, "tessaly/str/diskarray/PoolDetailCapa", pools.pool,
                                       buildCapacity))
             ? object
             : nullptr;
}

jobject buildControllerPools(JNIEnv* env, const PoolCtlCapa& pools) {
  return buildPools(env, "tessaly/str/diskarray/PoolCtlCapa", pools);
}

jobject buildByHand(JNIEnv* env, const PairInfo& info) {
  const jobject object = create(env, "tessaly/str/diskarray/PairInfo");
  return object != nullptr && setInt(env, object, "option", info.option) &&
                 setObject(env, object, "ctl", "[Ltessaly/str/diskarray/PoolCtlCapa;",
                           createArray(env, "tessaly/str/diskarray/PoolCtlCapa", info.ctl,
                                       buildControllerPools)) &&
                 setObject(env, object, "sys", "Ltessaly/str/diskarray/PoolSysCapa;",
                           buildPools(env, "tessaly/str/diskarray/PoolSysCapa", info.sys)) &&
                 setInt(env, object, "pair_count", info.pair_count) &&
                 setObject(env, object, "lu", "[Ltessaly/str/diskarray/PairLUInfo;",
                           createArray(env, "tessaly/str/diskarray/PairLUInfo", info.lu, buildLu))
             ? object
             : nullptr;
}

/// A unit on which every pair is in use.
const PairInfo& fullUnit() {
  static const std::unique_ptr<PairInfo> info = [] {
    auto made = std::make_unique<PairInfo>();
    std::int32_t number = 0;
    for (PairLUInfo& lu : made->lu) {
      lu.lun = ++made->pair_count;
      for (MirrorLUInfo& mirror : lu.m_info) {
        mirror.lun = number++;
        std::snprintf(mirror.pair_name, sizeof mirror.pair_name, "pair-%06d", mirror.lun);
        std::snprintf(mirror.ctg_name, sizeof mirror.ctg_name, "group-%02d", mirror.lun % 32);
        std::snprintf(mirror.add_message, sizeof mirror.add_message, "split by schedule");
      }
      lu.mirror_count = 32;
    }
    return made;
  }();
  return *info;
}

void keep(JNIEnv* env, jobject built) {
  if (built == nullptr) {
    std::fputs("the pair information could not be built\n", stderr);
    std::abort();
  }
  env->DeleteLocalRef(built);
}

void BM_BuildFullPairs(benchmark::State& state) {
  JNIEnv* const env = jvm();
  const quorvelj::ClassMap& map = quorvelj::ClassOf<PairInfo>::kMap;
  compare(
      state, [&] { keep(env, quorvelj::build(env, map, &fullUnit())); },
      [&] { keep(env, buildByHand(env, fullUnit())); }, 1);
}

/// The most memory that the process had so far, in MiB: to be compared, a form must run alone.
double peakMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

/// A whole call of a native method, with the library's filling of the record.
template <auto Method>
void callForm(benchmark::State& state) {
  JNIEnv* const env = jvm();
  quorvelSimPrepareOutput("QV_GetPairInformation", &fullUnit(), sizeof(PairInfo));
  const jstring unit = env->NewStringUTF("north");
  const auto call = [&] { keep(env, Method(env, nullptr, unit, nullptr)); };
  const double before = peakMemory();
  for (auto _ : state) {
    call();
  }
  state.counters["before_MiB"] = before;
  state.counters["peak_MiB"] = peakMemory();
  quorvelSimReset();
  env->DeleteLocalRef(unit);
}

void BM_FullPairs(benchmark::State& state) {
  callForm<Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetPairInformation>(state);
}
void BM_LightPairs(benchmark::State& state) {
  callForm<Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetPairInformationLite>(state);
}
void BM_SecondLightPairs(benchmark::State& state) {
  callForm<Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetPairInformationLite2>(state);
}

BENCHMARK(BM_BuildFullPairs)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FullPairs)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LightPairs)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SecondLightPairs)->Unit(benchmark::kMillisecond);

}  // namespace
