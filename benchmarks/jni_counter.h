#pragma once

#include <jni.h>

#include <type_traits>
#include <vector>

// Counts the JNI calls that building takes, in a real machine: while native code runs, the thread's
// function table is one whose entries count and go on to the machine's own.

/// What one piece of native code asked of the machine.
struct JniCounts {
  /// How often each function was called, in the order of `JniCounter`'s list.
  std::vector<long> calls;
  /// Objects, arrays and texts that were made, without those of Java's own constructors.
  long objects = 0;
  /// Local references that were held at the same time, at most.
  long references = 0;

  [[nodiscard]] long total() const {
    long sum = 0;
    for (const long count : calls) {
      sum += count;
    }
    return sum;
  }
};

namespace jni_counter {

inline const JNINativeInterface_* original = nullptr;
inline long held = 0;
inline long mostHeld = 0;

/// One entry: `Slot` is the function's place in the table.
template <auto Slot>
struct Entry;

template <class Result, class... Argument,
          Result (*JNINativeInterface_::*Slot)(JNIEnv*, Argument...)>
struct Entry<Slot> {
  inline static long count = 0;
  static Result call(JNIEnv* env, Argument... arguments) {
    ++count;
    if constexpr (std::is_convertible_v<Result, jobject>) {
      const Result reference = (original->*Slot)(env, arguments...);
      held += reference != nullptr ? 1 : 0;
      mostHeld = held > mostHeld ? held : mostHeld;
      return reference;
    } else {
      if constexpr (std::is_same_v<Result (*)(JNIEnv*, Argument...), void (*)(JNIEnv*, jobject)>) {
        --held;  // DeleteLocalRef, alone of its kind
      }
      return (original->*Slot)(env, arguments...);
    }
  }
};

template <auto... Slot>
struct Entries {
  static void install(JNINativeInterface_& table) { ((table.*Slot = &Entry<Slot>::call), ...); }
  static void reset() { ((Entry<Slot>::count = 0), ...); }
  static std::vector<long> counts() { return {Entry<Slot>::count...}; }
  static long sum() { return (Entry<Slot>::count + ...); }
};

using Interface = JNINativeInterface_;
using Makers = Entries<&Interface::NewObjectV, &Interface::NewObjectArray, &Interface::NewIntArray,
                       &Interface::NewByteArray, &Interface::NewStringUTF>;
using Others = Entries<&Interface::FindClass, &Interface::GetMethodID, &Interface::GetObjectClass,
                       &Interface::GetFieldID, &Interface::SetIntField, &Interface::SetObjectField,
                       &Interface::GetObjectField, &Interface::SetObjectArrayElement,
                       &Interface::SetIntArrayRegion, &Interface::SetByteArrayRegion,
                       &Interface::GetIntArrayElements, &Interface::ReleaseIntArrayElements,
                       &Interface::GetStringUTFLength, &Interface::GetStringUTFChars,
                       &Interface::ReleaseStringUTFChars, &Interface::ExceptionOccurred,
                       &Interface::DeleteLocalRef>;

}  // namespace jni_counter

/// Runs `work` and counts what it calls.
template <class Work>
JniCounts countJni(JNIEnv* env, Work work) {
  using namespace jni_counter;
  original = env->functions;
  Makers::reset();
  Others::reset();
  held = mostHeld = 0;
  JNINativeInterface_ counting = *original;
  Makers::install(counting);
  Others::install(counting);
  env->functions = &counting;
  work();
  env->functions = original;
  JniCounts counts{Makers::counts(), Makers::sum(), mostHeld};
  const std::vector<long> others = Others::counts();
  counts.calls.insert(counts.calls.end(), others.begin(), others.end());
  return counts;
}
