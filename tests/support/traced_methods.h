#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "arraylib/accounts.h"
#include "tests/support/mini_jvm.h"
#include "tests/support/native_methods.h"
#include "tests/support/simulated_library.h"
#include "tests/support/split.h"

// Calls of native methods on the mini JVM, event by event.
namespace quorvelj::testing {

/// Events in their order, as in "malloc 32, QV_KeepSession, free".
struct Events : std::vector<std::string> {
  Events() = default;
  Events(vector events) : vector(std::move(events)) {}
  Events(const std::string& list) : vector(split(list, ", ")) {}
  Events(const char* list) : Events(std::string(list)) {}
};

inline Events operator+(Events left, const Events& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}
/// The same events over and over.
inline Events operator*(std::size_t count, const Events& events) {
  return count == 0 ? Events() : events + (count - 1) * events;
}

/// The allocation of a record, or of an array of them.
template <class Record>
Events mallocOf() {
  return "malloc " + std::to_string(sizeof(Record));
}

inline const Events kCopyName = "GetStringUTFLength, GetStringUTFChars, ReleaseStringUTFChars";
inline const Events kReadSession =
    "GetObjectClass, GetFieldID session_id [B, GetObjectField, DeleteLocalRef, "
    "GetByteArrayRegion 32, ExceptionOccurred, DeleteLocalRef";
/// The unit and the session, and what comes first in a frame that takes them.
inline const Events kTakeBoth = kCopyName + mallocOf<QVSessionInfo>() + kReadSession;
inline const Events kBegin = "flush" + kTakeBoth;
inline const Events kStore = "SetObjectArrayElement, ExceptionOccurred, DeleteLocalRef";
inline const Events kThrow =
    "FindClass tessaly/str/diskarray/DiskArrayException, GetMethodID <init> (I)V, NewObject, Throw";
inline const Events kThrowOutOfMemory =
    "FindClass java/lang/OutOfMemoryError, ThrowNew java/lang/OutOfMemoryError \"\"";

inline Events newObject(const std::string& name) {
  return "FindClass tessaly/str/diskarray/" + name +
         ", GetMethodID <init> ()V, NewObject, DeleteLocalRef";
}
inline Events newArray(const std::string& name, int length) {
  return "FindClass tessaly/str/diskarray/" + name + ", NewObjectArray " + std::to_string(length) +
         ", DeleteLocalRef";
}
inline Events setInt(const std::string& name) {
  return "GetObjectClass, GetFieldID " + name +
         " I, SetIntField, ExceptionOccurred, DeleteLocalRef";
}

inline void expectEvents(const Events& actual, const Events& expected) {
  EXPECT_EQ(actual, expected);
}
inline void expectStart(Events actual, const Events& expected) {
  actual.resize(std::min(actual.size(), expected.size()));
  EXPECT_EQ(actual, expected);
}
inline void expectEnd(Events actual, const Events& expected) {
  const std::size_t length = std::min(actual.size(), expected.size());
  actual.erase(actual.begin(), actual.end() - static_cast<std::ptrdiff_t>(length));
  EXPECT_EQ(actual, expected);
}
inline std::ptrdiff_t countOf(const Events& events, const char* event) {
  return std::count(events.begin(), events.end(), event);
}
/// The events that start with one of these texts.
inline Events only(const Events& events, const Events& beginnings) {
  Events kept;
  std::copy_if(events.begin(), events.end(), std::back_inserter(kept), [&](const auto& event) {
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const auto& beginning) { return event.starts_with(beginning); });
  });
  return kept;
}

/// Tests of native methods. Every library call succeeds and returns zeros, unless a test forces
/// another result.
class TracedMethods : public SimulatedLibrary {
 protected:
  TracedMethods() {
    quorvelSimForceResult("*", 0, 1000);
    quorvelSimObserve([](const char* function) { recorder().add(function); });
  }

  /// Texts, inputs, and ints of 3.
  std::vector<jvalue> argumentsOf(const char* method) {
    return jvm_.newArguments(nativeMethod(method));
  }
  jvalue invoke(const char* method, const std::vector<jvalue>& arguments) {
    return result_ = nativeMethod(method).invoke(jvm_.env(), arguments);
  }
  jvalue invoke(const char* method) { return invoke(method, argumentsOf(method)); }

  template <class Call>
  Events traceOf(Call call) {
    recorder() = {.tracing = true, .events = {}};
    call();
    recorder().tracing = false;
    return std::move(recorder().events);
  }
  Events trace(const char* method, const std::vector<jvalue>& arguments) {
    return traceOf([&] { invoke(method, arguments); });
  }
  Events trace(const char* method) { return trace(method, argumentsOf(method)); }

  /// What a call throws that returns null.
  std::string failureOf(const char* method) {
    EXPECT_EQ(invoke(method).l, nullptr) << method;
    return thrown();
  }
  /// Takes the pending exception: "DiskArrayException 258", "NoSuchFieldError percent" or "".
  std::string thrown() {
    const auto pending = jvm_.pending();
    jvm_.clearPending();
    return pending ? pending->shown() : "";
  }

  MiniJvm jvm_;
  jvalue result_{};
};

}  // namespace quorvelj::testing
