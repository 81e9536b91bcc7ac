// The mapping of all ports, 33 MB in one record and 4080 arrays of 2048 ints: what it costs against
// the same JNI calls written out, and how much native memory a call takes.
//
// The Java heap counts in the process's peak as well. It stays out of the difference where all of
// it is touched beforehand: JAVA_TOOL_OPTIONS="-Xms1g -Xmx1g -XX:+AlwaysPreTouch".
#include <malloc.h>

#include <cstdio>
#include <fstream>

#include "arraylib/hosts.h"
#include "benchmarks/comparison.h"
#include "simulator/control.h"
#include "tessaly_str_diskarray_DiskArrayUtilityJNI.h"

namespace {

#define PACKAGE "tessaly/str/diskarray/"

jobject newByHand(JNIEnv* env, const char* className) {
  std::fflush(stdout);
  const jclass type = env->FindClass(className);
  if (type == nullptr) {
    return nullptr;
  }
  const jmethodID constructor = env->GetMethodID(type, "<init>", "()V");
  if (constructor == nullptr) {
    return nullptr;
  }
  const jobject object = env->NewObject(type, constructor);
  if (object != nullptr) {
    env->DeleteLocalRef(type);
  }
  return object;
}

bool setIntByHand(JNIEnv* env, jobject object, const char* name, jint value) {
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

bool storeByHand(JNIEnv* env, jobject object, const char* name, const char* signature,
                 jobject value) {
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

/// An array of objects, each built by `build` from its record.
template <class Record, std::size_t N, class Build>
jobjectArray arrayByHand(JNIEnv* env, const char* className, const Record (&records)[N],
                         Build build) {
  const jclass type = env->FindClass(className);
  if (type == nullptr) {
    return nullptr;
  }
  const jobjectArray array = env->NewObjectArray(static_cast<jsize>(N), type, nullptr);
  env->DeleteLocalRef(type);
  if (array == nullptr) {
    return nullptr;
  }
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

jobject groupByHand(JNIEnv* env, const LuMappingHGInfo& record) {
  const jobject object = newByHand(env, PACKAGE "LuMappingHGInfo");
  const jintArray lus = object == nullptr ? nullptr : env->NewIntArray(2048);
  if (lus == nullptr) {
    return nullptr;
  }
  env->SetIntArrayRegion(lus, 0, 2048, record.lu);
  if (env->ExceptionOccurred() != nullptr) {
    return nullptr;
  }
  return storeByHand(env, object, "lu", "[I", lus) ? object : nullptr;
}

jobject portByHand(JNIEnv* env, const LuMappingPortInfo& record) {
  const jobject object = newByHand(env, PACKAGE "LuMappingPortInfo");
  if (object == nullptr || !setIntByHand(env, object, "security", record.security) ||
      !setIntByHand(env, object, "hg_tg_max_count", record.hg_tg_max_count)) {
    return nullptr;
  }
  const jobject groups = arrayByHand(env, PACKAGE "LuMappingHGInfo", record.hg, groupByHand);
  return groups != nullptr &&
                 storeByHand(env, object, "hg", "[L" PACKAGE "LuMappingHGInfo;", groups)
             ? object
             : nullptr;
}

jobject controllerByHand(JNIEnv* env, const LuMappingCtlInfo& record) {
  const jobject object = newByHand(env, PACKAGE "LuMappingCtlInfo");
  const jobject ports =
      object == nullptr ? nullptr
                        : arrayByHand(env, PACKAGE "LuMappingPortInfo", record.port, portByHand);
  return ports != nullptr &&
                 storeByHand(env, object, "port", "[L" PACKAGE "LuMappingPortInfo;", ports)
             ? object
             : nullptr;
}

jobject mappingByHand(JNIEnv* env, const LuMapping& record) {
  const jobject object = newByHand(env, PACKAGE "LuMapping");
  if (object == nullptr || !setIntByHand(env, object, "HostGroupValid", record.HostGroupValid) ||
      !setIntByHand(env, object, "ctrl_flag", record.ctrl_flag) ||
      !setIntByHand(env, object, "mapping_mode", record.mapping_mode)) {
    return nullptr;
  }
  const jobject controllers =
      arrayByHand(env, PACKAGE "LuMappingCtlInfo", record.ctl, controllerByHand);
  return controllers != nullptr &&
                 storeByHand(env, object, "ctl", "[L" PACKAGE "LuMappingCtlInfo;", controllers)
             ? object
             : nullptr;
}

/// The whole call: the same frame, the same library function, the same JNI calls.
jobject getByHand(JNIEnv* env, jstring unit) {
  std::fflush(stdout);
  UnitName name;
  if (env->GetStringUTFLength(unit) == 0) {
    return nullptr;
  }
  const char* const characters = env->GetStringUTFChars(unit, nullptr);
  std::snprintf(name, sizeof name, "%s", characters);
  env->ReleaseStringUTFChars(unit, characters);
  auto* const session = static_cast<QVSessionInfo*>(std::malloc(sizeof(QVSessionInfo)));
  auto* const mapping = static_cast<LuMapping*>(std::malloc(sizeof(LuMapping)));
  if (session == nullptr || mapping == nullptr) {
    std::abort();
  }
  const int result = QV_GetLuMappingListAll(&name, session, mapping);
  std::free(session);
  const jobject object = result == 0 ? mappingByHand(env, *mapping) : nullptr;
  std::free(mapping);
  std::fflush(stdout);
  return object;
}

jobject getByMap(JNIEnv* env, jstring unit) {
  return Java_tessaly_str_diskarray_DiskArrayUtilityJNI_QV_1GetLuMappingListAll(env, nullptr, unit,
                                                                                nullptr);
}

/// A figure of /proc/self/status in kilobytes.
double status(const std::string& name) {
  std::ifstream file("/proc/self/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(name + ':')) {
      return std::stod(line.substr(name.size() + 1));
    }
  }
  std::abort();
}

/// By how much one call raises the memory that the process holds, at its most.
double peakOf(JNIEnv* env, jobject (*get)(JNIEnv*, jstring), jstring unit) {
  std::ofstream("/proc/self/clear_refs") << "5";  // starts the peak anew
  const double before = status("VmRSS");
  env->DeleteLocalRef(get(env, unit));
  return (status("VmHWM") - before) * 1024 / 1e6;
}

void BM_GetLuMappingListAll(benchmark::State& state) {
  JNIEnv* const env = jvm();
  const jstring unit = env->NewStringUTF("unit");
  // Large records go back to the system when they are released, so that each call's peak is its
  // own.
  mallopt(M_MMAP_THRESHOLD, 1 << 20);
  quorvelSimForceResult("QV_GetLuMappingListAll", 0, 1 << 30);
  const double map = peakOf(env, getByMap, unit);
  const double hand = peakOf(env, getByHand, unit);
  const auto timed = [env, unit](jobject (*get)(JNIEnv*, jstring)) {
    const jobject object = get(env, unit);
    if (object == nullptr) {
      std::abort();
    }
    env->DeleteLocalRef(object);
  };
  compare(
      state, [&] { timed(getByMap); }, [&] { timed(getByHand); }, 1);
  state.counters["map_peak_MB"] = map;
  state.counters["hand_peak_MB"] = hand;
  quorvelSimForceResult("QV_GetLuMappingListAll", 0, 0);
}

BENCHMARK(BM_GetLuMappingListAll)->Unit(benchmark::kMillisecond);

}  // namespace
