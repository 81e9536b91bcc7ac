#pragma once

#include <jni.h>

#include <numeric>
#include <type_traits>
#include <vector>

// Counts the JNI calls that building takes, in a real machine: while native code runs, the thread's
// function table is one whose entries count and go on to the machine's own.

/// What one piece of native code asked of the machine.
struct JniCounts {
  /// How often each function was called that looks nothing up.
  std::vector<long> calls;
  /// How often each of the others was.
  std::vector<long> lookUps;
  /// Local references to classes that were made, and local references that were deleted.
  long classes = 0;
  long deleted = 0;
  /// Objects, arrays and texts that were made, without those of Java's own constructors.
  long objects = 0;
  /// Local references that were held at the same time, at most.
  long references = 0;

  [[nodiscard]] long total() const {
    return std::accumulate(calls.begin(), calls.end(), deleted) +
           std::accumulate(lookUps.begin(), lookUps.end(), 0L);
  }

  [[nodiscard]] bool isSame(const JniCounts& other) const {
    return calls == other.calls && lookUps == other.lookUps && deleted == other.deleted;
  }
  /// The same but for the look-ups, and the letting go of the classes that they made.
  [[nodiscard]] bool isSameButForLookUps(const JniCounts& other) const {
    return calls == other.calls && deleted - other.deleted == classes - other.classes;
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
using Classes = Entries<&Interface::FindClass, &Interface::GetObjectClass>;
using LookUps = Entries<&Interface::GetMethodID, &Interface::GetFieldID, &Interface::IsSameObject>;
using Deletions = Entries<&Interface::DeleteLocalRef>;
using Others = Entries<&Interface::SetIntField, &Interface::GetIntField, &Interface::SetObjectField,
                       &Interface::GetObjectField, &Interface::SetObjectArrayElement,
                       &Interface::GetObjectArrayElement, &Interface::GetArrayLength,
                       &Interface::SetIntArrayRegion, &Interface::GetIntArrayRegion,
                       &Interface::SetByteArrayRegion, &Interface::GetByteArrayRegion,
                       &Interface::GetIntArrayElements, &Interface::ReleaseIntArrayElements,
                       &Interface::GetStringUTFLength, &Interface::GetStringUTFChars,
                       &Interface::ReleaseStringUTFChars, &Interface::ExceptionOccurred>;

template <class... List>
struct Lists {
  static void install(JNINativeInterface_& table) { (List::install(table), ...); }
  static void reset() { (List::reset(), ...); }
};
using All = Lists<Makers, Classes, LookUps, Deletions, Others>;

}  // namespace jni_counter

/// Runs `work` and counts what it calls.
template <class Work>
JniCounts countJni(JNIEnv* env, Work work) {
  using namespace jni_counter;
  original = env->functions;
  All::reset();
  held = mostHeld = 0;
  JNINativeInterface_ counting = *original;
  All::install(counting);
  env->functions = &counting;
  work();
  env->functions = original;
  JniCounts counts{Others::counts(), Classes::counts(), Classes::sum(),
                   Deletions::sum(), Makers::sum(),     mostHeld};
  const auto append = [](std::vector<long>& to, const std::vector<long>& from) {
    to.insert(to.end(), from.begin(), from.end());
  };
  append(counts.calls, Makers::counts());
  append(counts.lookUps, LookUps::counts());
  return counts;
}
