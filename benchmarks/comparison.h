#pragma once

#include <benchmark/benchmark.h>
#include <jni.h>

#include <chrono>
#include <cstdlib>
#include <string>

// A real Java virtual machine, and the comparison of two ways to do the same in it.

/// The machine, started on first use, with the Java half and the benchmarks' classes. All of its
/// heap is touched at the start, so that what a call adds to the process is not the heap's growth.
inline JNIEnv* jvm() {
  static JNIEnv* const env = [] {
    std::string classPath = "-Djava.class.path=" QUORVELJ_CLASS_PATH;
    char least[] = "-Xms1g";
    char most[] = "-Xmx1g";
    char touched[] = "-XX:+AlwaysPreTouch";
    JavaVMOption options[] = {
        {classPath.data(), nullptr}, {least, nullptr}, {most, nullptr}, {touched, nullptr}};
    JavaVMInitArgs arguments{JNI_VERSION_1_8, 4, options, JNI_FALSE};
    JavaVM* machine = nullptr;
    JNIEnv* started = nullptr;
    if (JNI_CreateJavaVM(&machine, reinterpret_cast<void**>(&started), &arguments) != JNI_OK) {
      std::abort();
    }
    return started;
  }();
  return env;
}

/// Lets go of what a call built; ends the process where it built nothing.
inline void release(JNIEnv* env, jobject built) {
  if (built == nullptr || env->ExceptionCheck() == JNI_TRUE) {
    std::abort();
  }
  env->DeleteLocalRef(built);
}

/// Times batches of `batch` calls of `byMap` and `byHand` by turns, so that both meet the same
/// machine, and reports nanoseconds per object and their ratio.
template <class ByMap, class ByHand>
void compare(benchmark::State& state, ByMap byMap, ByHand byHand, int batch = 100) {
  using Clock = std::chrono::steady_clock;
  const auto timed = [batch](auto& work) {
    const Clock::time_point start = Clock::now();
    for (int index = 0; index < batch; ++index) {
      work();
    }
    return Clock::now() - start;
  };
  Clock::duration mapTime{};
  Clock::duration handTime{};
  bool mapFirst = false;
  for (auto _ : state) {
    // The first by turns as well: what one leaves for the garbage collector, the next one meets.
    mapFirst = !mapFirst;
    if (mapFirst) {
      mapTime += timed(byMap);
    }
    handTime += timed(byHand);
    if (!mapFirst) {
      mapTime += timed(byMap);
    }
  }
  const auto perObject = [&](Clock::duration time) {
    return std::chrono::duration<double, std::nano>(time).count() /
           (static_cast<double>(state.iterations()) * batch);
  };
  state.counters["map_ns"] = perObject(mapTime);
  state.counters["hand_ns"] = perObject(handTime);
  state.counters["ratio"] = perObject(mapTime) / perObject(handTime);
}
